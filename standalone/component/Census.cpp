#include "Census.h"

#include <string>
#include <vector>

#include "FeatureObject.h"
#include "ORXComponentLink.h"
#include "VYRStandaloneInstruments.h"
#include "ValueCell.h"

namespace VYRStandalone
{
constinit std::atomic<int> Census::s_allocated{0};
constinit std::atomic<int> Census::s_named[Census::Kinds] = {};

class CensusReader
{
public:
    static int Allocated() { return Census::s_allocated.load(std::memory_order_relaxed); }
    static int Named(std::size_t iKind) { return Census::s_named[iKind].load(std::memory_order_relaxed); }
};

int LiveComponents()
{
    return CensusReader::Allocated() + CensusReader::Named(Census::Value);
}

std::vector<std::string> LiveComponentNames()
{
    static constexpr const char* names[Census::Kinds] = {"Container",   "Extension", "FeatureKey",   "FeatureObject",
                                                         "Manipulator", "Tie",       "VolatileParm", "Value"};
    std::vector<std::string> lines;
    int others = CensusReader::Allocated();
    for (std::size_t kind = 0; kind < Census::Kinds; ++kind)
    {
        const int number = CensusReader::Named(kind);
        if (number != 0)
            lines.push_back(std::string(names[kind]) + " " + std::to_string(number));
        if (kind != Census::Value)
            others -= number;
    }
    if (others != 0)
        lines.push_back("Component " + std::to_string(others));
    return lines;
}

unsigned int ReferenceCount(ORXBaseUnknown* iComponent)
{
    if (iComponent == nullptr)
        return 0;
    if (const FeatureObject* const object = FeatureObject::Of(iComponent))
        return object->References();
    if (const ValueCell* const value = ValueCell::Of(dynamic_cast<ORXICkeInst*>(iComponent)))
        return value->Holds();
    // These two count on their object.
    if (const AttributeParm* const parm = dynamic_cast<AttributeParm*>(iComponent))
        return parm->Object().References();
    if (const AddedAttribute* const added = dynamic_cast<AddedAttribute*>(iComponent))
        return added->Object().References();
    const ORXBaseUnknown& root = *iComponent->GetImpl(0);
    return ORXComponentLink::IsLinked(root) ? 0 : ORXComponentLink::Count(root);
}
} // namespace VYRStandalone
