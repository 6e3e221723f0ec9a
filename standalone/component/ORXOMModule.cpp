#include "Dictionary.h"
#include "ORXFillDictionary.h"

ORXOMModule::ORXOMModule(const ORXOMModuleInfo& iInfo) : m_info(iInfo)
{
    VYRStandalone::Dictionary::Queue(m_info);
}

ORXOMModule::~ORXOMModule()
{
    VYRStandalone::Dictionary::Unqueue(m_info);
}
