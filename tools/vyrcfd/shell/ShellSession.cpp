#include "ShellSession.h"

#include <exception>

#include "ApplyText.h"
#include "ConfigurationFiles.h"
#include "Output.h"
#include "Reports.h"

namespace Tool
{
ShellSession::ShellSession(Installation iInstallation, std::string iFile)
    : m_installation(std::move(iInstallation)), m_file(std::move(iFile)), m_model(m_installation.LoadModel(m_file)),
      m_savedText(m_model.Text())
{
}

ObjectSnapshot ShellSession::Read(const Target& iAttribute, const std::string& iPath) const
{
    return TakeSnapshot(m_model, iAttribute.object, iPath, iAttribute.attribute).front();
}

void ShellSession::Change(const std::function<void()>& iWork)
{
    const Snapshot before = TakeSnapshot(m_model);
    std::exception_ptr failure;
    try
    {
        iWork();
    }
    catch (const std::exception&)
    {
        failure = std::current_exception();
    }
    const Snapshot after = TakeSnapshot(m_model);
    Print(DifferenceText(Compare(before, after)));
    if (failure != nullptr)
        std::rethrow_exception(failure);
}

const std::vector<std::string>& ShellSession::Configurations()
{
    if (!m_configurations)
        m_configurations = ConfigurationNames(ReadConfigurationFiles(m_installation));
    return *m_configurations;
}

std::vector<std::string> ShellSession::TakeReports()
{
    const std::vector<std::string> lines = TakeReportLines();
    m_reports.insert(m_reports.end(), lines.begin(), lines.end());
    return lines;
}

std::string ShellSession::Save(const std::string& iFile)
{
    const std::string& file = iFile.empty() ? m_file : iFile;
    m_model.Save(file);
    m_savedText = m_model.Text();
    return file;
}

bool ShellSession::MustWarn()
{
    const std::string text = m_model.Text();
    if (text == m_savedText || text == m_warnedText)
        return false;
    m_warnedText = text;
    return true;
}
} // namespace Tool
