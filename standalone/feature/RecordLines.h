#ifndef RecordLines_H
#define RecordLines_H

#include <string>
#include <string_view>

#include "KnowledgeType.h"
#include "ORXIValue.h"
#include "ORXListValORXUnicodeString.h"

class ORXISpecObject;

namespace VYRStandalone
{
class FeatureKey;
class FeatureObject;

/// The lines of `CallRecorder`. Only made while somebody records.
class RecordLines
{
public:
    static std::string Text(bool iValue) { return iValue ? "true" : "false"; }
    static std::string Text(double iValue) { return std::string(RealText(iValue).View()); }
    /// A number given to an enumeration stands as its text.
    static std::string Text(const KnowledgeType& iType, int iValue);
    /// "(none)" for a value that takes away.
    static std::string Text(ORXIValue& iValue);
    /// The object's name; "(null)" for null.
    static std::string Text(ORXISpecObject* iObject);

    /// "write OBJECT.ATTRIBUTE[INDEX] = TEXT", without an index where it is 0.
    static std::string Write(const FeatureObject& iObject, std::string_view iName, int iIndex,
                             const std::string& iText);
    /// "VERB OBJECT.ATTRIBUTE[INDEX]", " = TEXT" behind it unless the text is empty.
    static std::string Call(const char* iVerb, const FeatureObject& iObject, std::string_view iName, int iIndex,
                            const std::string& iText = {});
    /// "advise OBJECT.ATTRIBUTE = TEXT" with what the attribute holds now.
    static std::string Advise(const FeatureObject& iObject, const FeatureKey& iKey);

    /// "allow OBJECT.ATTRIBUTE = [TEXT, TEXT]".
    static std::string Allow(const FeatureObject& iObject, const FeatureKey& iKey,
                             const ORXListValORXUnicodeString& iTexts);

private:
    static std::string Present(const FeatureObject& iObject, const FeatureKey& iKey);
};
} // namespace VYRStandalone

#endif
