/**
 * @file
 * Values of every kind that the printers know, to be looked at where `Look` is called.
 */

#include "ORXListValORXBaseUnknown_var.h"
#include "ORXListValORXUnicodeString.h"
#include "ORXRawColldouble.h"
#include "ORXString.h"
#include "VYRCfdObjectAccess.h"
#include "VYRCfdObjectCondition.h"
#include "VYRStandaloneHost.h"

extern "C" __attribute__((noinline)) void Look()
{
    asm volatile("");
}

int main()
{
    const ORXUnicodeString empty;
    const ORXUnicodeString inlined("23 bytes, held inlined.");
    const ORXUnicodeString heap("24 bytes, held elsewhere");
    // A quotation mark, a letter beyond ASCII, and a byte that is no UTF-8.
    const ORXUnicodeString strange("\"\xc3\xbc\"\xff");
    const ORXString narrow("narrow");

    VYRStandalone::DeclareCatalog(R"({ "catalog": "Values", "types": [
        { "name": "Body", "attributes": [ { "name": "mass", "kind": "real", "default": 1.0 } ] } ] })",
                                  "Values");
    VYRStandalone::Model model;
    const ORXISpecObject_var object = model.Create("Body", "Body.1");
    const ORXISpecObject_var null;

    ORXListValORXUnicodeString texts;
    texts.Append("one");
    texts.Append("two");
    ORXListValORXBaseUnknown_var objects;
    objects.Append(NULL_var);
    ORXRawColldouble numbers(1);
    numbers.Append(2.5);

    const VYRCfdObjectAccess cursor{ORXBaseUnknown_var(object)};
    const VYRCfdObjectAccess attribute = cursor["mass"];
    const VYRCfdObjectAccess lost = cursor["height"];
    const VYRCfdObjectAccess nowhere{ORXUnicodeString()};
    const VYRCfdObjectCondition condition(cursor, "mass>0.5");
    const VYRCfdObjectCondition broken(cursor, "mass");
    Look();
    return 0;
}
