#include "Generator.h"

#include <algorithm>

namespace
{
using Twin::Attribute;
using Twin::Object;

constexpr const char* NewTypes[] = {"RandomZone",     "RandomZone",      "RandomAlpha",  "RandomBeta",
                                    "RandomMaterial", "RandomChoice",    "RandomSimple", "VYRCfdChoice",
                                    "RandomHooked",   "RandomBare",      "RandomGamma",  "VYRCfdDefaultManagement",
                                    "RandomSolver",   "VYRCfdConfigItem"};

constexpr const char* GeneralTexts[] = {"",      "flow",   "a b",     "0.25",  " -2.5e1 ", "7",           "12abc",
                                        "abc",   "5 mm",   "2 km",    "4 kg",  "true",     "False",       "0",
                                        "1",     "upwind", "central", "1e999", "300 K",    "99999999999", "made",
                                        "alpha", "kOmega", "0x1p3",   "keep",  "keep"};

constexpr const char* ChoiceTexts[] = {"alpha",   "beta",   "gamma", "delta", "one", "two",     "three",
                                       "laminar", "kOmega", "sst",   "x",     "y",   "nowhere", ""};

constexpr const char* StartupTexts[] = {"RandomAlpha", "RandomBeta",   "RandomGamma",    "RandomBare",  "",
                                        "NoType",      "RandomChoice", "RandomMaterial", "RandomAlpha", "RandomBeta",
                                        "RandomGamma"};

constexpr const char* AddedNames[] = {"extra", "more", "own", "iterations"};
constexpr const char* FlagNames[] = {"value_isset", "value_isauto", "iterations_isset", "iterations_isauto",
                                     "count_isset", "title_isauto", "own_isset"};
constexpr const char* AddedKinds[] = {"integer", "real", "string", "reference", "component"};

constexpr const char* Reals[] = {"0", "0.5", "-2.25", "0.1", "1e-07", "300", "1e+22", "1.5"};
constexpr const char* Integers[] = {"0", "1", "2", "3", "-1", "4", "500", "2147483647"};

/// Whether an attribute is of the class that a letter of a signature stands for.
bool Suits(const Attribute& iAttribute, char iLetter)
{
    const bool isList = iAttribute.kind == Twin::Kind::List;
    const bool hasObjects = Twin::HoldsObjects(isList ? iAttribute.entry : iAttribute.kind);
    return isList == (iLetter == 'v' || iLetter == 'L') && hasObjects == (iLetter == 'L' || iLetter == 'O');
}

/// Whether an attribute is of a kind to be given the value that a letter stands for.
bool Takes(const Attribute& iAttribute, char iLetter)
{
    const Twin::Kind kind = iAttribute.kind == Twin::Kind::List ? iAttribute.entry : iAttribute.kind;
    switch (iLetter)
    {
    case 'i':
        return kind == Twin::Kind::Integer || kind == Twin::Kind::Enumeration || kind == Twin::Kind::Real;
    case 'r':
        return kind == Twin::Kind::Real;
    case 'b':
        return kind == Twin::Kind::Boolean;
    case 'z':
        return kind == Twin::Kind::String;
    default:
        return true;
    }
}

void Collect(Object* iObject, std::vector<Object*>& ioObjects)
{
    ioObjects.push_back(iObject);
    for (const auto& [name, attribute] : iObject->attributes)
    {
        if (attribute.kind == Twin::Kind::Component && attribute.object != nullptr)
            Collect(attribute.object, ioObjects);
        if (attribute.kind == Twin::Kind::List && attribute.entry == Twin::Kind::Component)
            for (std::size_t i = 0; i < attribute.objects.size(); ++i)
                if (attribute.objects[i] != nullptr &&
                    std::find(attribute.objects.begin(), attribute.objects.begin() + static_cast<std::ptrdiff_t>(i),
                              attribute.objects[i]) == attribute.objects.begin() + static_cast<std::ptrdiff_t>(i))
                    Collect(attribute.objects[i], ioObjects);
    }
}
} // namespace

/// SplitMix64.
std::uint64_t Generator::Random()
{
    m_state += 0x9E3779B97F4A7C15u;
    std::uint64_t mixed = m_state;
    mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9u;
    mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBu;
    return mixed ^ (mixed >> 31);
}

const OperationKind& Generator::Kind()
{
    static const int total = [] {
        int sum = 0;
        for (const OperationKind& kind : OperationKinds())
            sum += kind.weight;
        return sum;
    }();
    int rest = Below(total);
    for (const OperationKind& kind : OperationKinds())
    {
        rest -= kind.weight;
        if (rest < 0)
            return kind;
    }
    return OperationKinds().front();
}

Operation Generator::Next(TwoModels& ioModels)
{
    m_models = &ioModels;
    const int special = Below(600);
    if (special < 2)
        return {"save", {}};
    if (special < 4)
        return {"drop", {}};
    if (special < 16)
        return {"create", {Any(NewTypes)}};
    Operation operation;
    const OperationKind& kind = Kind();
    operation.verb = kind.verb;
    m_self = nullptr;
    m_attribute = nullptr;
    m_choiceCount = 0;
    for (const char* letter = kind.signature; *letter != '\0'; ++letter)
        operation.words.push_back(Word(letter));
    return operation;
}

std::string Generator::Word(const char* iLetters)
{
    switch (*iLetters)
    {
    case 'o':
    case 'd':
    case 'c':
    case 'm':
        m_self = Target(iLetters);
        return m_self != nullptr ? m_models->AddressOf(*m_self) : "#0";
    case 's':
    case 'v':
    case 'L':
    case 'O':
        return m_attribute != nullptr && m_attribute == Twin::Host::Find(m_self, m_attribute->name) && !OneIn(25)
                   ? m_attribute->name
                   : Name(*iLetters);
    case 'x':
        return OperandAddress();
    case 'y':
    {
        std::string text;
        for (int i = Below(5); i > 0; --i)
            text += (text.empty() ? "" : ",") + OperandAddress();
        return text.empty() ? "-" : text;
    }
    case 'i':
        return Any(Integers);
    case 'r':
        return Any(Reals);
    case 'b':
        return OneIn(2) ? "1" : "0";
    case 'n':
        return Position();
    case 't':
        return Text();
    case 'w':
        return Choice();
    case 'z':
        return ChoiceList();
    case 'u':
        return Startups();
    case 'q':
        return OneIn(4) ? "monitors" : Name('s');
    case 'N':
        return AddedName();
    case 'K':
        return OneIn(3) ? "boolean" : Any(AddedKinds);
    default:
        return Any(RandomConfigurations()).name;
    }
}

/// One of the objects that stand for themselves, then one of what belongs to it; with an attribute that suits what is
/// to be done, as far as one is soon found.
Object* Generator::Target(const char* iLetters)
{
    const Twin::Configurator& twin = m_models->Twin();
    Object* found = nullptr;
    for (int attempt = 0; attempt < 60; ++attempt)
    {
        Object* root = Any(m_models->Known());
        if (!twin.IsInModel(*root))
            continue;
        std::vector<Object*> all;
        Collect(root, all);
        std::erase_if(all, [&](const Object* iObject) {
            return (*iLetters == 'd' && !twin.HasDefaults(*iObject)) ||
                   (*iLetters == 'c' && !twin.IsChoice(*iObject)) || (*iLetters == 'm' && !twin.IsManaged(*iObject));
        });
        if (all.empty())
            continue;
        // What stands for itself as often as all that belongs to it.
        found = OneIn(2) ? all.front() : Any(all);
        m_attribute = AnyOf(*found, iLetters);
        if (m_attribute != nullptr || std::string_view("svLO").find(iLetters[1]) == std::string_view::npos || OneIn(12))
            break;
    }
    return found;
}

const Attribute* Generator::AnyOf(const Object& iObject, const char* iLetters)
{
    // The letters may end behind the first.
    const char kind = iLetters[1];
    const char taken = kind != '\0' ? iLetters[2] : '\0';
    std::vector<const Attribute*> suited;
    for (const auto& [name, attribute] : iObject.attributes)
        // The sub-feature is left alone mostly: little works without it.
        if (Suits(attribute, kind) && Takes(attribute, taken) && (name != "defaultManagement" || OneIn(12)))
            suited.push_back(&attribute);
    return suited.empty() ? nullptr : Any(suited);
}

std::string Generator::Name(char iLetter)
{
    static constexpr const char* names[] = {"", "nothing", "value", "iterations", "nothing_isauto", "monitors", "zone"};
    if (m_self == nullptr || OneIn(25))
        return Any(names);
    std::vector<const Attribute*> suited;
    for (const auto& [name, attribute] : m_self->attributes)
        if (Suits(attribute, iLetter) || OneIn(60))
            suited.push_back(&attribute);
    if (suited.empty())
        return Any(names);
    m_attribute = Any(suited);
    return m_attribute->name;
}

/// Names of flags are for sub-features, where they may get into the way.
std::string Generator::AddedName()
{
    return m_self != nullptr && m_self->attributes.contains("configuration") ? Any(FlagNames) : Any(AddedNames);
}

std::string Generator::Text()
{
    if (m_attribute != nullptr && m_attribute->name == "value" && !OneIn(4))
        return Choice();
    return Any(GeneralTexts);
}

std::string Generator::Choice()
{
    if (m_self != nullptr && !OneIn(5))
        if (const Attribute* choices = Twin::Host::Find(m_self, "choices");
            choices != nullptr && !choices->values.empty())
            return Any(choices->values).text;
    return Any(ChoiceTexts);
}

std::string Generator::ChoiceList()
{
    if (m_attribute != nullptr && m_attribute->name == "Startups")
        return Startups();
    std::vector<std::string> pool;
    if (m_self != nullptr && m_models->Twin().IsChoice(*m_self) && !OneIn(4))
        for (const Twin::Value& value : Twin::Host::Find(m_self->startup, "choices")->values)
            pool.push_back(value.text);
    std::string text;
    for (int i = Below(5); i > 0; --i)
    {
        const std::string word = pool.empty() ? Any(ChoiceTexts) : Any(pool);
        text += (m_choiceCount++ == 0 ? "" : ",") + word;
    }
    return m_choiceCount == 0 ? "-" : text;
}

std::string Generator::Startups()
{
    if (OneIn(4))
        return "-";
    std::size_t count = m_choiceCount;
    if (m_attribute != nullptr && m_attribute->name == "Startups")
        count = Twin::Host::Find(m_self, "choices")->values.size();
    if (OneIn(8))
        count += 1;
    std::string text;
    for (std::size_t i = 0; i < count; ++i)
        text += (i == 0 ? "" : ",") + std::string(Any(StartupTexts));
    return count == 0 ? "-" : text;
}

std::string Generator::Position()
{
    int size = 0;
    if (m_attribute != nullptr && m_attribute->kind == Twin::Kind::List)
        size = static_cast<int>(std::max(m_attribute->values.size(), m_attribute->objects.size()));
    else if (!OneIn(6))
        return "0";
    return std::to_string(OneIn(8) ? Below(size + 4) - 1 : 1 + Below(size + 1));
}

Object* Generator::Operand()
{
    if (OneIn(6))
        return nullptr;
    if (m_attribute != nullptr && !m_attribute->objects.empty() && OneIn(2))
        return Any(m_attribute->objects);
    if (m_attribute != nullptr && m_attribute->object != nullptr && OneIn(3))
        return m_attribute->object;
    for (int attempt = 0; attempt < 30; ++attempt)
    {
        Object* object = Any(m_models->Known());
        const bool isFlags = object->type == "VYRCfdDefaultManagement";
        const bool isRecord = object->type == "VYRCfdConfigItem";
        if (m_attribute != nullptr && m_attribute->name == "defaultManagement" && !isFlags)
            continue;
        if (m_attribute != nullptr && m_attribute->name == "configuration" && !isRecord && !OneIn(10))
            continue;
        // Solvers are what holds the others.
        if (m_attribute != nullptr && object->attributes.contains("turbulence") && !OneIn(10))
            continue;
        if (m_models->Twin().IsInModel(*object))
            return object;
    }
    return nullptr;
}

std::string Generator::OperandAddress()
{
    return Address(Operand());
}

std::string Generator::Address(Object* iObject)
{
    if (iObject == nullptr)
        return "null";
    if (const std::string address = m_models->AddressOf(*iObject); !address.empty())
        return address;
    // A record that is not known is reached through the list that holds it.
    if (m_attribute == nullptr || m_self == nullptr)
        return "null";
    const auto found = std::find(m_attribute->objects.begin(), m_attribute->objects.end(), iObject);
    if (found == m_attribute->objects.end())
        return "null";
    return m_models->AddressOf(*m_self) + "/" + m_attribute->name + "[" +
           std::to_string(found - m_attribute->objects.begin() + 1) + "]";
}
