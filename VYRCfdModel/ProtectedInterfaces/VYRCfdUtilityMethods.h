#ifndef VYRCfdUtilityMethods_H
#define VYRCfdUtilityMethods_H

/**
 * @file
 * Text utilities of the configuration engine and of the modules around it.
 */

#include <vector>

#include "ORXListValORXUnicodeString.h"
#include "ORXStatus.h"
#include "ORXUnicodeString.h"
#include "VYRCfdBaseExport.h"

/// None of these operations traces or reports: they tell by their status, and may be called from any thread.
class VYRCfdBaseExport VYRCfdUtilityMethods
{
public:
    /// How `ConvertToBoolean` reads an empty text.
    enum VYRCfdBooleanConvertType
    {
        VYRCfdEmptyIsFalse = 0,
        VYRCfdEmptyIsTrue = 1,
        VYRCfdEmptyIsInvalid = 2
    };

    /**
     * Splits a text at a delimiter and appends the tokens to the list, which is not cleared. Every blank is removed
     * from a token, also inside; empty tokens are kept, so that an empty text gives one. Meant for delimiters of one
     * character: of a longer one the tail stays at the head of the next token. @return S_OK
     */
    static HRESULT ConvertStringToList(ORXUnicodeString text, ORXListValORXUnicodeString& list,
                                       ORXUnicodeString delimiter);
    /// The same into a vector.
    static HRESULT ConvertStringToVector(ORXUnicodeString text, std::vector<ORXUnicodeString>& list,
                                         ORXUnicodeString delimiter = ",");

    /// Reads t, y, true, yes, on, 1 and f, n, false, no, off, 0, in any case and without trimming.
    /// @return E_FAIL for any other text, with `value` as it was
    static HRESULT ConvertToBoolean(const ORXUnicodeString& text, bool& value, VYRCfdBooleanConvertType type);

    /// Reads the number at the head of the text, as a stream of the classic locale does; what follows is not looked at.
    /// @return E_FAIL when there is none or it is out of range
    static HRESULT ConvertToDouble(const ORXUnicodeString& text, double& value);
    /// The same for an integer: of "3.7" the 3.
    static HRESULT ConvertToInteger(const ORXUnicodeString& text, int& value);

    /// A random identifier: four groups of up to eight hexadecimal digits, without leading zeros, parted by "_".
    static ORXUnicodeString GenerateUUID();

    /// Resolves "." and ".." and drops empty components; the result has no "/" at its ends.
    /// @return E_FAIL when ".." leads above the start, with an empty `normalized`
    static HRESULT NormalizePath(const ORXUnicodeString& path, ORXUnicodeString& normalized);

    /// Cuts a path at its first "/". `tail` is left alone where nothing follows, so callers pass an empty text.
    /// @return S_OK
    static HRESULT SplitAttr(ORXUnicodeString path, ORXUnicodeString& head, ORXUnicodeString& tail);
};

#endif
