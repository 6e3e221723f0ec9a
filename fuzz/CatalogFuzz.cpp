/**
 * @file
 * Catalogs. The input is one; since types live until the process ends, every "@" in it stands for a text that no input
 * had before, so that names that begin so are new ones each time.
 *
 * It is refused with one line that begins with the file and has then declared nothing, or objects can be made of its
 * types, and it can be declared again.
 */

#include "FuzzTarget.h"
#include "FuzzTypes.h"
#include "VYRStandaloneCatalog.h"

namespace
{
using VYRStandalone::DocumentError;
using VYRStandalone::Model;

std::string WithNewNames(std::string_view iInput)
{
    static int count = 0;
    const std::string text = "N" + std::to_string(++count) + "_";
    std::string catalog;
    for (const char character : iInput)
        if (character == '@')
            catalog += text;
        else
            catalog += character;
    return catalog;
}

void DemandOneLine(const DocumentError& iError)
{
    const std::string line = iError.what();
    Demand(line.rfind("input:", 0) == 0, "an error begins with its file", line);
    Demand(line.find('\n') == std::string::npos, "an error is one line", line);
}

void MakeOneOfEach(const std::vector<std::string>& iTypes, std::size_t iFirst)
{
    Model model;
    for (std::size_t i = iFirst; i < iTypes.size(); ++i)
    {
        const ORXISpecObject_var object = model.Create(ORXUnicodeString(iTypes[i].data(), iTypes[i].size()), "object");
        DemandSame(object->GetType().View(), iTypes[i], "an object is of its type");
    }
    FuzzTypes::DemandRoundTrip(model);
}
} // namespace

void RunInput(std::string_view iInput)
{
    FuzzTypes::Declare();
    const std::string catalog = WithNewNames(iInput);
    const std::size_t before = VYRStandalone::TypeNames().size();
    try
    {
        VYRStandalone::DeclareCatalog(catalog, "input");
    }
    catch (const DocumentError& error)
    {
        DemandOneLine(error);
        Demand(VYRStandalone::TypeNames().size() == before, "a refused catalog declares nothing");
        return;
    }
    MakeOneOfEach(VYRStandalone::TypeNames(), before);
    try
    {
        VYRStandalone::DeclareCatalog(catalog, "input");
    }
    catch (const DocumentError& error)
    {
        Demand(false, "a catalog can be declared again", error.what());
    }
}
