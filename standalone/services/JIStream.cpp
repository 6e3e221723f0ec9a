#include "JIStream.h"

#include "FastJson.h"
#include "FileName.h"
#include "Instruments.h"
#include "PerThread.h"
#include "StrictReader.h"
#include "WholeFile.h"

namespace
{
using VYRStandalone::Instruments;

/// A document takes fewer than two words for each byte of its file, so that there is room for the places in it.
constexpr std::size_t MostBytes = JSON::Document::MostWords / 2;

std::string_view KeyView(const char* iKey)
{
    return iKey != nullptr ? std::string_view(iKey) : std::string_view("");
}

/// What reading needs and a document does not keep, for the files that are read one after another.
struct Desk
{
    static constexpr std::size_t MostKept = std::size_t{1024} * 1024;
    /// Of the fast reader, which needs up to 13 bytes for each of the text.
    static constexpr std::size_t MostCapacity = MostKept / 4;

    std::string text;
    FastJson fast;
    JsonDraft draft;
};

/// The reading of one file, at the end of which what a large one took is given back.
class AtDesk
{
public:
    explicit AtDesk(Desk& ioDesk) noexcept : m_desk(ioDesk) {}
    ~AtDesk()
    {
        if (m_desk.text.capacity() > Desk::MostKept)
            m_desk.text = std::string();
        if (m_desk.fast.Capacity() > Desk::MostCapacity)
            m_desk.fast = FastJson();
        m_desk.draft.Trim(Desk::MostKept);
    }
    AtDesk(const AtDesk&) = delete;
    AtDesk& operator=(const AtDesk&) = delete;

private:
    Desk& m_desk;
};

/// Drafts the document at the desk. @return false if the text is not valid or no object
bool DraftDocument(Desk& ioDesk)
{
    switch (ioDesk.fast.Read(ioDesk.text, ioDesk.draft))
    {
    case FastJson::Verdict::Object:
        return true;
    case FastJson::Verdict::NoObject:
        return false;
    case FastJson::Verdict::Undecided:
        break;
    }
    return StrictReader(ioDesk.draft).Read(ioDesk.text);
}
} // namespace

namespace JSON
{
bool JIStream::ParseFile(const char* iPath, bool iReplace)
{
    if (iReplace)
        *this = JIStream();
    if (Instruments::Active() && iPath != nullptr && Instruments::Fails("ParseFile", FileName(iPath), nullptr))
        return false;
    Desk& desk = PerThread<Desk>::Get();
    const AtDesk reading(desk);
    if (iPath == nullptr || !ReadWholeFile(iPath, desk.text, FastJson::Padding, MostBytes).empty())
        return false;
    if (!DraftDocument(desk))
        return false;
    *this = desk.draft.Finish();
    return true;
}

JIStream::JIStream(const JIStream& iOther) noexcept : m_object(iOther.m_object)
{
    if (m_object != nullptr)
        Document::CountIn(m_object, 1);
}

void JIStream::Leave() noexcept
{
    Document::CountOut(m_object);
}

std::vector<JIStream> JIStream::ReadObjects(const char* iKey) const
{
    if (m_object == nullptr)
        return {};
    return Document::Objects(m_object, KeyView(iKey));
}

ORXUnicodeString JIStream::ReadString(const char* iKey) const
{
    if (m_object == nullptr)
        return {};
    const std::string_view text = Document::TextOf(m_object, KeyView(iKey));
    return ORXUnicodeString(text.data(), text.size());
}

ORXUnicodeString JIStream::ReadString(const ORXUnicodeString& iKey) const
{
    if (m_object == nullptr)
        return {};
    const std::string_view text = Document::TextOf(m_object, iKey.View());
    return ORXUnicodeString(text.data(), text.size());
}

bool JIStream::ReadBoolean(const ORXUnicodeString& iKey) const
{
    return m_object != nullptr && Document::IsTrue(m_object, iKey.View());
}

bool JIStream::Exist(const ORXUnicodeString& iKey) const
{
    return m_object != nullptr && Document::Has(m_object, iKey.View());
}
} // namespace JSON
