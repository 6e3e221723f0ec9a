#include "TableColumn.h"

#include "FeatureObject.h"
#include "Instruments.h"
#include "RecordLines.h"

namespace VYRStandalone
{
HRESULT TableColumn::QueryInterface(const IID& iInterface, void** oInterface)
{
    return m_object.QueryInterface(iInterface, oInterface);
}

unsigned int TableColumn::AddRef()
{
    return m_object.AddRef();
}

unsigned int TableColumn::Release()
{
    return m_object.DropReference();
}

ORXBaseUnknown* TableColumn::GetImpl(int iKind) const
{
    return m_object.GetImpl(iKind);
}

int TableColumn::GetRowCount()
{
    return static_cast<int>(m_rows.size());
}

HRESULT TableColumn::SetValue(int iRow, double iValue)
{
    if (Instruments::Active())
    {
        if (Instruments::IsRecording())
            Instruments::Record(RecordLines::Write(m_object, "row", iRow, RecordLines::Text(iValue)));
        HRESULT planted = S_OK;
        if (Instruments::Fails("SetValue", std::string_view(), &m_object, planted))
            return planted;
    }
    // The column as a single value is its first row.
    const int row = iRow == 0 ? 1 : iRow;
    const int behindLast = GetRowCount() + 1;
    if (row < 1 || row > behindLast)
        return E_FAIL;
    if (row == behindLast)
        m_rows.push_back(iValue);
    else
        m_rows[static_cast<std::size_t>(row) - 1] = iValue;
    return S_OK;
}

void TableColumn::GetValues(ORXRawColldouble& oValues)
{
    for (const double row : m_rows)
        oValues.Append(row);
}

HRESULT TableColumn::GetValue(int iRow, double& oValue)
{
    HRESULT planted = S_OK;
    if (Instruments::Active() && Instruments::Fails("GetValue", std::string_view(), &m_object, planted))
        return planted;
    const int row = iRow == 0 ? 1 : iRow;
    if (row < 1 || row > GetRowCount())
        return E_FAIL;
    oValue = m_rows[static_cast<std::size_t>(row) - 1];
    return S_OK;
}
} // namespace VYRStandalone
