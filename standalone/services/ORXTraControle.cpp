#include "ORXTrace.h"
#include "TraceRegistry.h"

ORXTraControle::ORXTraControle(const char* iName) : m_channel(TraceRegistry::Instance().Find(iName)) {}
