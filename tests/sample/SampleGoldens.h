#ifndef SampleGoldens_H
#define SampleGoldens_H

#include <map>
#include <string>

/**
 * What the files of tests/sample/data are to hold, by the names of the files. renew.sh shows where they differ, and
 * renews them.
 */
class SampleGoldens
{
public:
    /// Of the files in data/ those are compared whose names begin so.
    explicit SampleGoldens(std::string iPrefix) : m_prefix(std::move(iPrefix)) {}

    /// The name is put together from the prefix and this, a path or a name.
    std::string& Text(std::string iName);

    /// Of what depends on which of the two main files is read.
    std::string& TextOfSetting(const std::string& iName);

    /// Expects every file, and no other, with just these texts. When renewing, it writes and skips instead.
    void Compare() const;

private:
    std::string m_prefix;
    std::map<std::string, std::string> m_texts;
};

/// Whether the process reads the main file that judges convergence by slopes.
bool IsSlopeSetting();

#endif
