#include "JIStream.h"

#include "FastDocument.h"
#include "FileName.h"
#include "Instruments.h"
#include "PerThread.h"
#include "StrictDocument.h"
#include "WholeFile.h"

namespace
{
using VYRStandalone::Instruments;

std::string_view KeyView(const char* iKey)
{
    return iKey != nullptr ? std::string_view(iKey) : std::string_view("");
}

/// What reading needs and a document does not keep, for the files that are read one after another.
struct Desk
{
    static constexpr std::size_t MostKept = std::size_t{1024} * 1024;

    std::string text;
    simdjson::dom::parser parser;
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
        if (m_desk.parser.capacity() > Desk::MostKept)
            m_desk.parser = simdjson::dom::parser();
    }
    AtDesk(const AtDesk&) = delete;
    AtDesk& operator=(const AtDesk&) = delete;

private:
    Desk& m_desk;
};

/// Null if the text is not valid or no object.
std::shared_ptr<const JSON::Document> DocumentOf(Desk& ioDesk, JSON::Document::Place& oRoot)
{
    auto fast = std::make_shared<FastDocument>();
    switch (fast->Parse(ioDesk.parser, ioDesk.text, oRoot))
    {
    case FastDocument::Verdict::Object:
        return fast;
    case FastDocument::Verdict::NoObject:
        return nullptr;
    case FastDocument::Verdict::Undecided:
        break;
    }
    return StrictDocument::Parse(ioDesk.text, oRoot);
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
    if (iPath == nullptr || !ReadWholeFile(iPath, desk.text, FastDocument::Padding).empty())
        return false;
    Place root;
    std::shared_ptr<const Document> document = DocumentOf(desk, root);
    if (document == nullptr)
        return false;
    m_document = std::move(document);
    m_object = root;
    return true;
}

std::vector<JIStream> JIStream::ReadObjects(const char* iKey) const
{
    if (m_document == nullptr)
        return {};
    return m_document->Objects(m_object, KeyView(iKey), m_document);
}

ORXUnicodeString JIStream::ReadString(const char* iKey) const
{
    if (m_document == nullptr)
        return {};
    const std::string_view text = m_document->Text(m_object, KeyView(iKey));
    return ORXUnicodeString(text.data(), text.size());
}

ORXUnicodeString JIStream::ReadString(const ORXUnicodeString& iKey) const
{
    if (m_document == nullptr)
        return {};
    const std::string_view text = m_document->Text(m_object, iKey.View());
    return ORXUnicodeString(text.data(), text.size());
}

bool JIStream::ReadBoolean(const ORXUnicodeString& iKey) const
{
    return m_document != nullptr && m_document->IsTrue(m_object, iKey.View());
}

bool JIStream::Exist(const ORXUnicodeString& iKey) const
{
    return m_document != nullptr && m_document->Has(m_object, iKey.View());
}
} // namespace JSON
