#ifndef ORXSimFeatureInstanceAdp_H
#define ORXSimFeatureInstanceAdp_H

/**
 * @file
 * Link-time seam.
 */

#include "ORXKweInstanceAdapter.h"

/// Base of the knowledge side of simulation features.
class ORXHostExport ORXSimFeatureInstanceAdp : public ORXKweInstanceAdapter
{
public:
    ~ORXSimFeatureInstanceAdp() override;

    HRESULT AdviseAttributeChanged(const ORXUnicodeString& iName, const ORXIValue_var& iValue) override;

protected:
    ORXSimFeatureInstanceAdp();
};

#endif
