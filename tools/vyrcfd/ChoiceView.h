#ifndef ChoiceView_H
#define ChoiceView_H

/**
 * @file
 * A Choice, as a reader wants to see it: what is selected, and what could be.
 */

#include <optional>
#include <string>
#include <vector>

#include "Defaults.h"
#include "Snapshot.h"

namespace Tool
{
struct ChoiceView
{
    Value value;
    std::vector<std::string> choices;
    /// Feature types of the data objects; empty, or one for each choice, if the two lists are in order.
    std::vector<std::string> startups;
    Value display;
    AttributeDefault byDefault;
    /// Path of the data object, if there is one.
    Value data;
    /// Empty where there is none.
    std::string dataType;

    bool IsOffered(const std::string& iChoice) const;
    /// Whether the data object is of another type than the selected choice brings, which a model file may say.
    bool HasOtherData() const;
    /// Whether an attribute needs no row of its own beside `ChoiceText` and the heading.
    bool Tells(const AttributeSnapshot& iAttribute) const;
};

/// Nothing for an object of another type, and where not all of the Choice was asked for.
std::optional<ChoiceView> ChoiceViewOf(const ObjectSnapshot& iObject, const AskDefault& iAskDefault);

/**
 * The choices, one line each, the selected one marked, with the startups beside them and the default pointed out:
 *
 *     choices
 *           "laminar"               default
 *         > "kOmega"   KOmegaModel
 */
std::string ChoiceText(const ChoiceView& iChoice, const std::string& iIndent);

/// {"value", "choices", "startups", "display", "default", "data"}
void WriteChoice(JsonWriter& oWriter, const ChoiceView& iChoice);
} // namespace Tool

#endif
