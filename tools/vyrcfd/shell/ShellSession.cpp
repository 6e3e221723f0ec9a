#include "ShellSession.h"

#include <exception>

#include "ApplyText.h"
#include "ConfigurationFiles.h"
#include "EntryList.h"
#include "Failure.h"
#include "InputFile.h"
#include "Rebase.h"
#include "Uninterrupted.h"
#include "Wording.h"

namespace Tool
{
ShellSession::ShellSession(Installation iInstallation, std::string iFile)
    : m_installation(std::move(iInstallation)), m_file(std::move(iFile)), m_model(m_installation.LoadModel(m_file)),
      m_text(m_model.Text()), m_savedText(m_text)
{
}

void ShellSession::Begin(std::string iCommand)
{
    m_command = std::move(iCommand);
    m_answer = {};
}

AttributeSnapshot ShellSession::Read(const Target& iAttribute, const std::string& iPath) const
{
    const ObjectSnapshot object = TakeSnapshot(m_model, iAttribute.object, iPath, iAttribute.attribute).front();
    if (!object.attributes.empty())
        return object.attributes.front();
    // Default management is no attribute to whoever looks at the object as a whole.
    return {InfoOf(iAttribute), Value::Word(object.path + "/" + iAttribute.attribute), std::nullopt, std::nullopt};
}

void ShellSession::Change(const std::function<void()>& iWork, Touches iTouches)
{
    Before();
    std::exception_ptr failure;
    try
    {
        iWork();
    }
    catch (const std::exception&)
    {
        failure = std::current_exception();
    }
    std::string text = TextOrPutBack();
    const bool saysChanges = SayChanges();
    const bool hasChanged = saysChanges || text != m_text;
    if (failure != nullptr && !saysChanges)
        m_answer = {};
    if (hasChanged || (iTouches == Touches::CustomDefaults && failure == nullptr))
        m_history.Add(m_command, m_text, text);
    m_text = std::move(text);
    if (failure != nullptr)
        FailWith(failure, hasChanged);
}

void ShellSession::Undo()
{
    if (m_history.IsEmpty())
        throw Failure(m_history.HasForgotten() ? "what was done before is not known any more" : "nothing to undo");
    Before();
    std::string text = m_history.TextBefore(m_text);
    const std::string command = m_history.Command();
    Replace(text);
    m_text = std::move(text);
    m_history.DropLast();
    SayChanges();
    m_answer.text = "Undone: " + OneLine(command) + "\n" + m_answer.text;
}

ORXISpecObject_var ShellSession::Create(const std::string& iType, const std::string& iName)
{
    return m_model.Create(ORXUnicodeString(iType.data(), iType.size()), ORXUnicodeString(iName.data(), iName.size()));
}

void ShellSession::Replace(const std::string& iText)
{
    // Read to its end before the old one goes.
    VYRStandalone::Model model = VYRStandalone::Model::Parse(iText, "the model", m_installation.CatalogFolders());
    m_model = std::move(model);
    m_isReplaced = true;
    m_reports.Note("custom defaults are now those that the records give");
}

const Snapshot& ShellSession::Before()
{
    if (!m_before)
        m_before = TakeSnapshot(m_model);
    return *m_before;
}

std::string ShellSession::TextOrPutBack()
{
    try
    {
        return m_model.Text();
    }
    catch (const VYRStandalone::DocumentError& error)
    {
        Replace(m_text);
        m_before.reset();
        m_isReplaced = false;
        throw Failure("nothing has changed, since the model could not have been saved any more: " +
                      OneLine(error.what()));
    }
}

bool ShellSession::SayChanges()
{
    Snapshot after = TakeSnapshot(m_model);
    if (m_isReplaced)
        Rebase(*m_before, after);
    m_isReplaced = false;
    const Difference difference = Compare(*m_before, after);
    Say(MakeAnswer(DifferenceText(difference), [&](JsonWriter& oWriter) { WriteChanges(oWriter, difference); }));
    const bool hasChanged = !difference.objects.empty();
    m_before = std::move(after);
    return hasChanged;
}

void ShellSession::FailWith(const std::exception_ptr& iFailure, bool iHasChanged)
{
    if (iHasChanged)
        m_reports.Note("the command has changed something before it failed; undo takes that back");
    std::rethrow_exception(iFailure);
}

const std::vector<std::string>& ShellSession::Configurations()
{
    if (!m_configurations)
        m_configurations = ConfigurationNames(ReadConfigurationFiles(m_installation));
    return *m_configurations;
}

std::string ShellSession::Save(const std::string& iFile)
{
    const std::string& file = iFile.empty() ? m_file : iFile;
    if (IsFromPipe(file))
        throw Failure(OneLine(file) + ": is a pipe, which nothing is saved to; save FILE names a file");
    const Uninterrupted save(file);
    m_model.Save(file);
    m_savedText = m_text;
    return file;
}

bool ShellSession::MustWarn()
{
    if (m_text == m_savedText || m_text == m_warnedText)
        return false;
    m_warnedText = m_text;
    return true;
}
} // namespace Tool
