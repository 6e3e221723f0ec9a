/**
 * @file
 * Models. The input is a model file.
 *
 * It is refused with one line that begins with the file, or it makes a model that is the same after saving and loading,
 * also when its extensions have been at work.
 */

#include "FuzzTarget.h"
#include "FuzzTypes.h"
#include "VYRIMpaDefaultManagement.h"
#include "VYRStandaloneCatalog.h"
#include "VYRStandaloneErrors.h"

void RunInput(std::string_view iInput)
{
    FuzzTypes::Declare();
    try
    {
        VYRStandalone::Model model = VYRStandalone::Model::Parse(iInput, "input");
        FuzzTypes::DemandRoundTrip(model);
        for (const ORXISpecObject_var& object : FuzzTypes::AllObjects(model))
            if (const VYRIMpaDefaultManagement_var defaults = object)
                for (const VYRStandalone::AttributeInfo& attribute : VYRStandalone::Attributes(object))
                    defaults->Unset(attribute.name.c_str());
        FuzzTypes::DemandRoundTrip(model);
        model.DropExtensions();
        FuzzTypes::DemandRoundTrip(model);
    }
    catch (const VYRStandalone::DocumentError& error)
    {
        const std::string line = error.what();
        Demand(line.rfind("input:", 0) == 0, "an error begins with its file", line);
        Demand(line.find('\n') == std::string::npos, "an error is one line", line);
    }
}
