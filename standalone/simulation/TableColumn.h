#ifndef TableColumn_H
#define TableColumn_H

#include <vector>

#include "ORXISimBCDataTableColumn.h"

namespace VYRStandalone
{
class FeatureObject;

/// The rows of a table column: a facet of an object without attributes, counted on that object.
class TableColumn final : public ORXISimBCDataTableColumn
{
public:
    explicit TableColumn(FeatureObject& iObject) : m_object(iObject) {}

    std::vector<double>& Rows() noexcept { return m_rows; }

    using ORXBaseUnknown::QueryInterface;
    HRESULT QueryInterface(const IID& iInterface, void** oInterface) override;
    unsigned int AddRef() override;
    unsigned int Release() override;
    ORXBaseUnknown* GetImpl(int iKind) const override;
    int GetRowCount() override;
    HRESULT SetValue(int iRow, double iValue) override;
    void GetValues(ORXRawColldouble& oValues) override;
    HRESULT GetValue(int iRow, double& oValue) override;

private:
    FeatureObject& m_object;
    std::vector<double> m_rows;
};
} // namespace VYRStandalone

#endif
