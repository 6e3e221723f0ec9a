#ifndef Comparison_H
#define Comparison_H

/**
 * @file
 * Whether objects of the twin and of the real model are the same.
 */

#include <map>
#include <optional>
#include <string>

#include "ORXISpecObject.h"
#include "TwinConfigurator.h"
#include "VYRStandaloneModel.h"

/// What differs, in words; empty when nothing does.
using Difference = std::optional<std::string>;

/**
 * Pairs the objects of the twin with the real ones, and compares them. An object that comes into being is paired where
 * the twin has it: under the attribute of an object that is paired already, or in the container.
 */
class Comparison
{
public:
    explicit Comparison(Twin::Configurator& ioTwin) : m_twin(ioTwin) {}

    /// The real object; null where the twin's has none yet.
    ORXISpecObject_var RealOf(const Twin::Object* iObject) const;

    /// Compares what was touched, and what has come into being below it. What nobody else holds is let go.
    Difference CompareTouched(const std::set<Twin::Object*>& iTouched);

    /// Pairs an object that nothing refers to, and compares it.
    Difference Enter(Twin::Object& ioObject, const ORXISpecObject_var& iReal);

    /// Compares the whole model, in its order. @param iIsNew pairs everything anew
    Difference CompareAll(const VYRStandalone::Model& iModel, bool iIsNew);

    /// How many objects have been compared.
    long long Compared() const { return m_compared; }

private:
    Difference Pair(const Twin::Object* iObject, const ORXISpecObject_var& iReal);
    Difference CompareDeep(Twin::Object& ioObject);
    Difference Compare(Twin::Object& ioObject);
    Difference CompareIdentity(const Twin::Object& iObject, const ORXISpecObject_var& iReal) const;
    Difference CompareAttribute(const Twin::Object& iObject, const Twin::Attribute& iAttribute,
                                const ORXISpecObject_var& iReal);
    Difference CompareScalar(const Twin::Attribute& iAttribute, const ORXISpecObject_var& iReal) const;
    Difference CompareDefaults(Twin::Object& ioObject, const ORXISpecObject_var& iReal);
    bool IsNew(const Twin::Object* iObject) const;

    Twin::Configurator& m_twin;
    std::map<int, ORXISpecObject_var> m_pairs;
    std::map<const ORXBaseUnknown*, int> m_roots;
    /// Paired and not yet compared.
    std::vector<Twin::Object*> m_waiting;
    long long m_compared = 0;
};

#endif
