#ifndef ScratchObjects_H
#define ScratchObjects_H

/**
 * @file
 * Objects to try things out on, in models that nobody keeps.
 */

#include <string>
#include <unordered_map>

#include "ORXISpecAttrAccess.h"
#include "ObjectPlace.h"
#include "VYRCfdObjectAccess.h"
#include "VYRStandaloneModel.h"

namespace Tool
{
/// Makes one object of a type when it is first asked for. Selected values and defaults may be left behind on it; who
/// changes what a Choice offers says so, and the next one gets another object.
class ScratchObjects
{
public:
    /// The object at a place, which must be one that was found on such an object.
    VYRCfdObjectAccess At(const ObjectPlace& iPlace);

    /// The object of the type is not as its type makes it any more.
    void Spoil(const std::string& iType);

private:
    struct Root
    {
        VYRStandalone::Model model;
        ORXISpecObject_var object;
    };

    std::unordered_map<std::string, Root> m_roots;
};

/// Key of an attribute of the object at which the cursor stands; an optional one is made real. Null for none.
ORXISpecAttrKey_var KeyOf(const VYRCfdObjectAccess& iObject, const std::string& iName);

/// Whether an object of the same type need not have the attribute, whose key was asked for. It does here.
bool IsOptional(const VYRCfdObjectAccess& iObject, const std::string& iName);

/// Names that lead on from an object: its attributes, and of a Choice what it offers.
std::vector<std::string> NamesOn(const VYRCfdObjectAccess& iObject);

/// Whether the object is a Choice.
bool IsChoice(const VYRCfdObjectAccess& iObject);

/// What a Choice offers; empty for any other object.
std::vector<std::string> ChoicesOf(const VYRCfdObjectAccess& iObject);
/// The types of the data objects, empty or one for each choice.
std::vector<std::string> StartupsOf(const VYRCfdObjectAccess& iObject);

/// The value that a Choice comes with; empty for none, and for any other object.
std::string FirstChoiceOf(const VYRCfdObjectAccess& iObject);

/// Selects a value of a Choice, and lets it bring its data object up to date.
void Select(const VYRCfdObjectAccess& iChoice, const std::string& iValue);
} // namespace Tool

#endif
