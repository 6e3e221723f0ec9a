#ifndef VYRCfdAttributeNotification_H
#define VYRCfdAttributeNotification_H

/**
 * @file
 * Link-time seam.
 */

#include "ORXNotification.h"

/// Says that an object has changed, and carries no data: who receives it reads what it wants to know.
class ORXHostExport VYRCfdAttributeNotification : public ORXNotification
{
public:
    VYRCfdAttributeNotification();
    ~VYRCfdAttributeNotification() override;

    const char* IsA() const override;
    int IsAKindOf(const char* iClassName) const override;
};

#endif
