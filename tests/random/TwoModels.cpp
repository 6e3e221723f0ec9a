#include "TwoModels.h"

#include <algorithm>
#include <charconv>
#include <stdexcept>

#include "RandomTypes.h"
#include "VYRStandaloneErrors.h"
#include "VYRStandaloneInstruments.h"

namespace
{
/// Lines that are compared. Those of writes say no more than the notifications, but where nobody is told.
bool IsCompared(const std::string& iLine)
{
    return !iLine.starts_with("write ");
}

Difference UnequalLines(const char* iWhat, const std::vector<std::string>& iTwin, const std::vector<std::string>& iReal)
{
    const auto [twin, real] = std::mismatch(iTwin.begin(), iTwin.end(), iReal.begin(), iReal.end());
    if (twin == iTwin.end() && real == iReal.end())
        return std::nullopt;
    std::string text = std::string(iWhat) + " " + std::to_string(twin - iTwin.begin() + 1) + ": " +
                       (real == iReal.end() ? "none" : "\"" + *real + "\"") + ", and by the twin " +
                       (twin == iTwin.end() ? "none" : "\"" + *twin + "\"");
    for (auto before = iTwin.begin(); before != twin; ++before)
        text += (before == iTwin.begin() ? "; before it:\n    " : "\n    ") + *before;
    return text;
}

int IntegerOf(const std::string& iWord)
{
    const std::optional<int> number = Twin::ScannedInteger(iWord);
    if (!number)
        throw std::invalid_argument("no number: " + iWord);
    return *number;
}
} // namespace

TwoModels::TwoModels(const TwinMaker& iMaker)
    : m_twin(iMaker ? iMaker() : std::make_unique<Twin::Configurator>()), m_comparison(*m_twin)
{
    SetUpRandomTypes();
    for (const std::string& type : RandomObjects())
        if (const Difference difference = Create(type))
            throw std::logic_error("the models begin unequal: " + *difference);
}

void TwoModels::Know(Twin::Object* ioObject)
{
    m_known.push_back(ioObject);
    ioObject->known = static_cast<int>(m_known.size());
}

Difference TwoModels::Create(const std::string& iType)
{
    const std::string name = "Object." + std::to_string(m_known.size() + 1);
    Know(m_twin->Create(iType, name));
    m_twin->TakeTouched();
    return m_comparison.Enter(*m_known.back(), m_real.Create(iType.c_str(), name.c_str()));
}

// ---- addresses ------------------------------------------------------------------------------------------------------

std::string TwoModels::AddressOf(const Twin::Object& iObject) const
{
    if (iObject.known != 0)
        return "#" + std::to_string(iObject.known);
    if (iObject.owner == nullptr)
        return "";
    const std::string owner = AddressOf(*iObject.owner);
    if (owner.empty())
        return "";
    const Twin::Attribute& attribute = *Twin::Host::Find(iObject.owner, iObject.place);
    if (attribute.kind != Twin::Kind::List)
        return owner + "/" + iObject.place;
    const auto found = std::find(attribute.objects.begin(), attribute.objects.end(), &iObject);
    return owner + "/" + iObject.place + "[" + std::to_string(found - attribute.objects.begin() + 1) + "]";
}

Twin::Object* TwoModels::Resolve(const std::string& iAddress) const
{
    const std::size_t end = iAddress.find('/');
    const int number = iAddress.starts_with("#") ? IntegerOf(iAddress.substr(1, end - 1)) : 0;
    if (number < 1 || number > static_cast<int>(m_known.size()))
        return nullptr;
    Twin::Object* object = m_known[static_cast<std::size_t>(number - 1)];
    std::size_t from = end;
    while (object != nullptr && from != std::string::npos)
    {
        const std::size_t next = iAddress.find('/', from + 1);
        std::string step = iAddress.substr(from + 1, next == std::string::npos ? next : next - from - 1);
        std::size_t position = 0;
        if (const std::size_t bracket = step.find('['); bracket != std::string::npos)
        {
            position = static_cast<std::size_t>(IntegerOf(step.substr(bracket + 1)));
            step.erase(bracket);
        }
        const Twin::Attribute* attribute = Twin::Host::Find(object, step);
        if (attribute == nullptr)
            return nullptr;
        if (position == 0)
            object = attribute->object;
        else
            object = position <= attribute->objects.size() ? attribute->objects[position - 1] : nullptr;
        from = next;
    }
    return object;
}

// ---- operations -----------------------------------------------------------------------------------------------------

bool TwoModels::Read(const Operation& iOperation, const char* iSignature, TwinArguments& oTwin,
                     RealArguments& oReal) const
{
    const auto addObject = [&](const std::string& iAddress, bool iMayBeNull) {
        Twin::Object* object = iAddress == "null" ? nullptr : Resolve(iAddress);
        const bool isNull = iAddress == "null" && iMayBeNull;
        if (!isNull && (object == nullptr || !m_twin->IsInModel(*object) || !m_comparison.RealOf(object)))
            return false;
        // The module counts on a sub-feature being one.
        if (iMayBeNull && object != nullptr && !oTwin.texts.empty() && oTwin.texts.back() == "defaultManagement" &&
            object->type != "VYRCfdDefaultManagement")
            return false;
        oTwin.objects.push_back(object);
        oReal.objects.push_back(m_comparison.RealOf(object));
        return true;
    };
    std::size_t word = 0;
    for (const char* letter = iSignature; *letter != '\0'; ++letter, ++word)
    {
        const std::string& text = iOperation.words[word];
        if (std::string_view("odcm").find(*letter) != std::string_view::npos)
        {
            if (!addObject(text, false))
                return false;
        }
        else if (*letter == 'x' || *letter == 'y')
        {
            for (const std::string& address : *letter == 'x' ? std::vector{text} : SplitWords(text))
                if (!addObject(address, true))
                    return false;
        }
        else if (*letter == 'i' || *letter == 'b' || *letter == 'n')
            oTwin.integers.push_back(IntegerOf(text));
        else if (*letter == 'r')
            oTwin.real = Twin::ScannedReal(text).value_or(0.0);
        else if (*letter == 'z')
            oTwin.list = SplitWords(text);
        else
            oTwin.texts.push_back(text);
    }
    oReal.texts = oTwin.texts;
    oReal.integers = oTwin.integers;
    oReal.real = oTwin.real;
    oReal.list = oTwin.list;
    return true;
}

Difference TwoModels::Do(const Operation& iOperation)
{
    m_hasRun = true;
    if (iOperation.verb == "create")
        return Create(iOperation.words[0]);
    if (iOperation.verb == "save")
        return SaveAndLoad();
    if (iOperation.verb == "drop")
    {
        m_real.DropExtensions();
        m_twin->DropExtensions();
        ++m_met["extensions dropped"];
        return std::nullopt;
    }
    const OperationKind& kind = *FindOperationKind(iOperation.verb);
    TwinArguments twin;
    RealArguments real;
    m_hasRun = Read(iOperation, kind.signature, twin, real);
    return m_hasRun ? Run(kind, twin, real) : std::nullopt;
}

Difference TwoModels::Run(const OperationKind& iKind, const TwinArguments& iTwin, const RealArguments& iReal)
{
    const std::string expected = iKind.onTwin(*m_twin, iTwin);
    ++m_met["answer " + std::string(iKind.verb) + " " + expected.substr(0, expected.find(' '))];
    std::string found;
    std::vector<std::string> lines;
    {
        VYRStandalone::CallRecorder recorder;
        found = iKind.onReal(iReal);
        lines = recorder.Take();
    }
    if (found != expected)
    {
        VYRStandalone::TakeReports();
        return "answer: \"" + found + "\", and by the twin \"" + expected + "\"";
    }
    if (const Difference difference = CompareRecords(lines))
        return difference;
    return m_comparison.CompareTouched(m_twin->TakeTouched());
}

Difference TwoModels::CompareRecords(const std::vector<std::string>& iRealLines)
{
    std::vector<std::string> lines;
    std::copy_if(iRealLines.begin(), iRealLines.end(), std::back_inserter(lines), IsCompared);
    std::vector<std::string> reports;
    for (const VYRStandalone::Report& report : VYRStandalone::TakeReports())
    {
        reports.push_back(report.text);
        ++m_met["report " + report.text];
    }
    for (const std::string& line : lines)
        ++m_met["call " + line.substr(0, line.find(' '))];
    const Difference byLines = UnequalLines("call", m_twin->TakeLines(), lines);
    const Difference byReports = UnequalLines("report", m_twin->TakeReports(), reports);
    return byLines ? byLines : byReports;
}

/// References to what has left the model cannot be saved; nothing is done then.
Difference TwoModels::SaveAndLoad()
{
    m_hasRun = !m_twin->RefersToStrays();
    if (!m_hasRun)
        return std::nullopt;
    const std::string text = m_real.Text();
    VYRStandalone::Model again = VYRStandalone::Model::Parse(text, "saved");
    if (again.Text() != text)
        return std::string("what was loaded is not what was saved");
    m_real = std::move(again);
    ++m_met["saved and loaded"];
    m_twin->Reload();
    Difference difference = m_comparison.CompareAll(m_real, true);
    m_twin->TakeTouched();
    return difference;
}
