#include "VYRCfdConfigurableTransaction.h"

#include <exception>

VYRCfdConfigurableTransaction::VYRCfdConfigurableTransaction(const VYRICfdConfigurable_var& ispConfigurable)
    : m_configurable(ispConfigurable), m_exceptions(std::uncaught_exceptions())
{
    if (!!m_configurable)
        m_configurable->StartConfiguration();
}

VYRCfdConfigurableTransaction::~VYRCfdConfigurableTransaction() noexcept(false)
{
    if (!m_configurable)
        return;
    if (std::uncaught_exceptions() == m_exceptions)
    {
        m_configurable->CompleteConfiguration();
        return;
    }
    // The bracket is closed all the same; of two exceptions only the first can pass through.
    try
    {
        m_configurable->CompleteConfiguration();
    }
    catch (...)
    {
    }
}
