#ifndef QuietDefaults_H
#define QuietDefaults_H

/**
 * @file
 * Defaults of a model that goes on being worked with.
 */

#include <optional>
#include <string>
#include <unordered_map>

#include "Defaults.h"
#include "VYRStandaloneModel.h"

namespace Tool
{
/**
 * Asks for defaults without leaving a trace. Default management keeps the records that it looks up, so it is asked on a
 * copy of the model, which has the records and the start-ups; only the custom defaults, which live nowhere but in
 * memory, are asked for on the model itself, where they are found without looking anything up.
 */
class QuietDefaults
{
public:
    /// The model is copied when something is asked for, and must not change from then on.
    explicit QuietDefaults(const VYRStandalone::Model& iModel) : m_model(iModel) {}

    AttributeDefault Of(const ObjectSnapshot& iObject, const AttributeSnapshot& iAttribute);
    AskDefault Ask();

private:
    void Copy();
    AttributeDefault OnCopy(const ObjectSnapshot& iObject, const AttributeSnapshot& iAttribute);

    const VYRStandalone::Model& m_model;
    std::optional<VYRStandalone::Model> m_copy;
    /// Objects of the copy by their paths.
    std::unordered_map<std::string, ORXISpecObject_var> m_objects;
};
} // namespace Tool

#endif
