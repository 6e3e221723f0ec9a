#ifndef Defaults_H
#define Defaults_H

/**
 * @file
 * Defaults of attributes, and where values come from.
 */

#include <functional>

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

/// Answers so for a model that nobody saves.
AskDefault AskDefaultManagement();

/**
 * "set" for an attribute that was set; otherwise what the value came from, if the value is what that gives: "custom
 * default", "record" or "start-up"; otherwise "none".
 */
const char* SourceText(const AttributeSnapshot& iAttribute, const AttributeDefault& iDefault);

/// "custom default", "record", "start-up" or "none".
const char* OriginText(DefaultOrigin iOrigin);
} // namespace Tool

#endif
