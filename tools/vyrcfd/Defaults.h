#ifndef Defaults_H
#define Defaults_H

/**
 * @file
 * Defaults of attributes, and where values come from.
 */

#include <functional>
#include <map>
#include <string>
#include <utility>

#include "Snapshot.h"

namespace Tool
{
/// Where a default comes from, as default management tells it.
enum class DefaultOrigin
{
    None,
    CustomDefault,
    Record,
    Startup
};

struct AttributeDefault
{
    Value value;
    DefaultOrigin origin = DefaultOrigin::None;

    /// Such as `0.7 (start-up)`.
    std::string Shown() const;
};

/// Gives the default of an attribute of an object.
using AskDefault = std::function<AttributeDefault(const ObjectSnapshot&, const AttributeSnapshot&)>;

/// Asks default management, which remembers the answer, and reports where it has none: to be used on a model that
/// nobody saves, and whose reports nobody reads.
AttributeDefault DefaultOf(const ORXISpecObject_var& iObject, const AttributeSnapshot& iAttribute);

/// Answers so for a model that nobody saves, and asks for each default only once: the answer to a second question would
/// name another origin.
class DefaultsOnce
{
public:
    AttributeDefault Of(const ORXISpecObject_var& iObject, const AttributeSnapshot& iAttribute);
    /// The same as a function, valid as long as this object.
    AskDefault Ask();

private:
    std::map<std::pair<const ORXBaseUnknown*, std::string>, AttributeDefault> m_known;
};

/**
 * "set" for an attribute that was set; otherwise what the value came from, if the value is what that gives: "custom
 * default", "record" or "start-up"; otherwise "none".
 */
const char* SourceText(const AttributeSnapshot& iAttribute, const AttributeDefault& iDefault);

/// "custom default", "record", "start-up" or "none".
const char* OriginText(DefaultOrigin iOrigin);
} // namespace Tool

#endif
