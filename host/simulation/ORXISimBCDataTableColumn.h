#ifndef ORXISimBCDataTableColumn_H
#define ORXISimBCDataTableColumn_H

/**
 * @file
 * Run-time seam.
 */

#include "ORXBaseUnknown.h"
#include "ORXRawColldouble.h"

/**
 * A column of a data table: real numbers without attributes, in SI units. Rows are counted from 1; row 0 addresses the
 * column as a single value, which is its first row.
 */
class ORXHostExport ORXISimBCDataTableColumn : public ORXBaseUnknown
{
public:
    /// Number of rows; 0 for an empty column.
    virtual int GetRowCount() = 0;

    /// Writes a row. The row behind the last appends, as row 0 does on an empty column. Any other row out of range
    /// fails and changes nothing.
    virtual HRESULT SetValue(int iRow, double iValue) = 0;

    /// Appends all rows, in their order.
    virtual void GetValues(ORXRawColldouble& oValues) = 0;

    /// Fails on a row out of range and then leaves `oValue` alone.
    virtual HRESULT GetValue(int iRow, double& oValue) = 0;

    static const IID& ClassId() noexcept { return IID_ORXISimBCDataTableColumn; }
};

using ORXISimBCDataTableColumn_var = ORXHandle<ORXISimBCDataTableColumn>;

#endif
