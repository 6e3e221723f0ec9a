#ifndef AccessOnly_H
#define AccessOnly_H

#include "ORXISpecAttrAccess.h"

/// Offers attribute access and has no attribute.
class AccessOnly : public ORXISpecAttrAccess
{
public:
    using ORXBaseUnknown::QueryInterface;
    HRESULT QueryInterface(const IID& iInterface, void** oInterface) override
    {
        if (!(iInterface == IID_ORXISpecAttrAccess))
            return ORXBaseUnknown::QueryInterface(iInterface, oInterface);
        *oInterface = static_cast<ORXISpecAttrAccess*>(this);
        AddRef();
        return S_OK;
    }

    ORXISpecAttrKey* GetAttrKey(const char*) override { return nullptr; }
    ORXBoolean HasAttribute(ORXISpecAttrKey*) override { return ORXFalse; }
    HRESULT SetDouble(ORXISpecAttrKey*, double, int) override { return E_FAIL; }
    HRESULT SetInteger(ORXISpecAttrKey*, int, int) override { return E_FAIL; }
    HRESULT SetBoolean(ORXISpecAttrKey*, ORXBoolean, int) override { return E_FAIL; }
    HRESULT SetString(ORXISpecAttrKey*, const ORXUnicodeString&, int) override { return E_FAIL; }
    HRESULT SetSpecObject(ORXISpecAttrKey*, const ORXISpecObject_var&, int, int) override { return E_FAIL; }
    double GetDouble(ORXISpecAttrKey*, int) override { return 0.0; }
    int GetInteger(ORXISpecAttrKey*, int) override { return 0; }
    ORXBoolean GetBoolean(ORXISpecAttrKey*, int) override { return ORXFalse; }
    ORXUnicodeString GetString(ORXISpecAttrKey*, int) override { return ORXUnicodeString(); }
    ORXISpecObject* GetSpecObject(ORXISpecAttrKey*, int) override { return nullptr; }
    HRESULT SetStringList(ORXISpecAttrKey*, const ORXListValORXUnicodeString&) override { return E_FAIL; }
    int GetListSize(ORXISpecAttrKey*) override { return 0; }
    HRESULT RemovePosition(ORXISpecAttrKey*, int) override { return E_FAIL; }
    HRESULT RemoveAll(ORXISpecAttrKey*) override { return E_FAIL; }
    void RemoveObject(ORXISpecAttrKey*, const ORXISpecObject_var&) override {}
    HRESULT MoveInPosition(ORXISpecAttrKey*, const ORXISpecObject_var&, int) override { return E_FAIL; }
    ORXListValORXBaseUnknown_var* ListObjects(ORXISpecAttrKey*, int) override { return nullptr; }
    HRESULT InsertAtPosition(ORXISpecAttrKey*, const ORXISpecObject_var&, int) override { return E_FAIL; }
};

#endif
