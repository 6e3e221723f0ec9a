#ifndef VYRCfdConfigurableTransaction_H
#define VYRCfdConfigurableTransaction_H

/**
 * @file
 * Link-time seam.
 */

#include "VYRICfdConfigurable.h"

/**
 * A configuration bracket for the length of a scope: opened at the beginning, whatever that answers, and closed at the
 * end. On a null handle it does nothing.
 */
class ORXHostExport VYRCfdConfigurableTransaction
{
public:
    /// Opens the bracket, and holds the feature.
    explicit VYRCfdConfigurableTransaction(const VYRICfdConfigurable_var& ispConfigurable);

    /// What the update at the close answers is lost. An exception from it passes through, unless another one is ending
    /// the scope.
    ~VYRCfdConfigurableTransaction() noexcept(false);

    VYRCfdConfigurableTransaction(const VYRCfdConfigurableTransaction&) = delete;
    VYRCfdConfigurableTransaction& operator=(const VYRCfdConfigurableTransaction&) = delete;

private:
    VYRICfdConfigurable_var m_configurable;
    int m_exceptions;
};

#endif
