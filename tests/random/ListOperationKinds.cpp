/**
 * @file
 * Objects as values, and lists: by the attribute store and by cursors.
 */

#include "Operation.h"
#include "RealAccess.h"

namespace
{
using Twin::Attribute;
using Twin::Configurator;

constexpr const char* NoAttribute = "no attribute";

using OnTwin = std::function<HRESULT(Configurator&, Twin::Object&, Attribute&, const TwinArguments&)>;
using OnReal = std::function<HRESULT(ORXISpecAttrAccess&, ORXISpecAttrKey*, const RealArguments&)>;

/// An operation of the attribute store.
OperationKind OfStore(const char* iVerb, const char* iSignature, int iWeight, OnTwin iOnTwin, OnReal iOnReal)
{
    return {iVerb, iSignature, iWeight,
            [iOnTwin](Configurator& ioTwin, const TwinArguments& iArguments) -> std::string {
                Attribute* attribute = Twin::Host::Find(iArguments.Self(), iArguments.Name());
                if (attribute == nullptr)
                    return NoAttribute;
                return StatusText(iOnTwin(ioTwin, *iArguments.Self(), *attribute, iArguments));
            },
            [iOnReal](const RealArguments& iArguments) -> std::string {
                const RealAttribute attribute(iArguments.Self(), iArguments.Name());
                if (!attribute.key)
                    return NoAttribute;
                return StatusText(iOnReal(*attribute.access.Pointer(), attribute.key, iArguments));
            }};
}

using AtTwin = std::function<HRESULT(Configurator&, const Twin::Place&, const TwinArguments&)>;
using AtReal = std::function<HRESULT(const VYRCfdObjectAccess&, const RealArguments&)>;

/// An operation of a cursor at an attribute; attributes that hold objects are stayed at.
OperationKind OfCursor(const char* iVerb, const char* iSignature, int iWeight, AtTwin iOnTwin, AtReal iOnReal)
{
    return {iVerb, iSignature, iWeight,
            [iOnTwin](Configurator& ioTwin, const TwinArguments& iArguments) -> std::string {
                Attribute* attribute = Twin::Host::Find(iArguments.Self(), iArguments.Name());
                const Twin::Place place = attribute != nullptr
                                              ? Twin::Place{iArguments.Self(), attribute, ""}
                                              : ioTwin.Get(Twin::Cursor::At(iArguments.Self()), iArguments.Name());
                return StatusText(iOnTwin(ioTwin, place, iArguments));
            },
            [iOnReal](const RealArguments& iArguments) -> std::string {
                return StatusText(iOnReal(RealPlace(iArguments.Self(), iArguments.Name()), iArguments));
            }};
}

ORXListValORXUnicodeString ListOf(const std::vector<std::string>& iTexts)
{
    ORXListValORXUnicodeString list;
    for (const std::string& text : iTexts)
        list.Append(text.c_str());
    return list;
}

std::vector<OperationKind> StoreOperations()
{
    return {
        OfStore(
            "set", "oOx", 15, [](auto& t, auto& o, auto& a, auto& w) { return t.SetObject(o, a, w.objects[1], 0); },
            [](auto& s, auto* k, auto& w) { return s.SetSpecObject(k, w.objects[1], 0, 0); }),
        OfStore(
            "setentry", "oLxn", 15,
            [](auto& t, auto& o, auto& a, auto& w) { return t.SetObject(o, a, w.objects[1], w.integers[0]); },
            [](auto& s, auto* k, auto& w) { return s.SetSpecObject(k, w.objects[1], w.integers[0], 0); }),
        OfStore(
            "insert", "oLxn", 60,
            [](auto& t, auto& o, auto& a, auto& w) { return t.Insert(o, a, w.objects[1], w.integers[0]); },
            [](auto& s, auto* k, auto& w) { return s.InsertAtPosition(k, w.objects[1], w.integers[0]); }),
        OfStore(
            "move", "oLxn", 25,
            [](auto& t, auto& o, auto& a, auto& w) { return t.Move(o, a, w.objects[1], w.integers[0]); },
            [](auto& s, auto* k, auto& w) { return s.MoveInPosition(k, w.objects[1], w.integers[0]); }),
        OfStore(
            "removeat", "oLn", 10,
            [](auto& t, auto& o, auto& a, auto& w) { return t.RemovePosition(o, a, w.integers[0]); },
            [](auto& s, auto* k, auto& w) { return s.RemovePosition(k, w.integers[0]); }),
        OfStore(
            "removevalue", "ovn", 8,
            [](auto& t, auto& o, auto& a, auto& w) { return t.RemovePosition(o, a, w.integers[0]); },
            [](auto& s, auto* k, auto& w) { return s.RemovePosition(k, w.integers[0]); }),
        OfStore(
            "clear", "oL", 4, [](auto& t, auto& o, auto& a, auto&) { return t.RemoveAll(o, a); },
            [](auto& s, auto* k, auto&) { return s.RemoveAll(k); }),
        OfStore(
            "take", "oOx", 10,
            [](auto& t, auto& o, auto& a, auto& w) { return t.RemoveObject(o, a, w.objects[1]), S_OK; },
            [](auto& s, auto* k, auto& w) { return s.RemoveObject(k, w.objects[1]), S_OK; }),
        OfStore(
            "takeentry", "oLx", 10,
            [](auto& t, auto& o, auto& a, auto& w) { return t.RemoveObject(o, a, w.objects[1]), S_OK; },
            [](auto& s, auto* k, auto& w) { return s.RemoveObject(k, w.objects[1]), S_OK; }),
        OfStore(
            "texts", "ovz", 12, [](auto& t, auto& o, auto& a, auto& w) { return t.SetTexts(o, a, w.list); },
            [](auto& s, auto* k, auto& w) { return s.SetStringList(k, ListOf(w.list)); }),
    };
}

std::vector<OperationKind> CursorOperations()
{
    return {
        OfCursor(
            "cursor.texts", "ovz", 12, [](auto& t, auto& p, auto& w) { return t.SetStrings(p, w.list); },
            [](auto& c, auto& w) { return c.SetStrings(ListOf(w.list)); }),
        OfCursor(
            "cursor.list", "oLy", 50,
            [](auto& t, auto& p, auto& w) {
                return t.SetList(p, {w.objects.begin() + 1, w.objects.end()});
            },
            [](auto& c, auto& w) {
                ORXListValORXBaseUnknown_var list;
                for (std::size_t i = 1; i < w.objects.size(); ++i)
                    list.Append(w.objects[i]);
                return c.SetList(list);
            }),
        OfCursor(
            "cursor.set", "oOx", 8, [](auto& t, auto& p, auto& w) { return t.SetObjectAt(p, w.objects[1], 0); },
            [](auto& c, auto& w) { return c.SetObject(ORXBaseUnknown_var(w.objects[1]), 0); }),
        OfCursor(
            "cursor.setentry", "oLxn", 8,
            [](auto& t, auto& p, auto& w) { return t.SetObjectAt(p, w.objects[1], w.integers[0]); },
            [](auto& c, auto& w) { return c.SetObject(ORXBaseUnknown_var(w.objects[1]), w.integers[0]); }),
        OfCursor(
            "cursor.remove", "oLx", 8, [](auto& t, auto& p, auto& w) { return t.Remove(p, w.objects[1]); },
            [](auto& c, auto& w) { return c.Remove(ORXBaseUnknown_var(w.objects[1])); }),
        OfCursor(
            "cursor.removeat", "oLn", 8, [](auto& t, auto& p, auto& w) { return t.RemoveEntry(p, w.integers[0]); },
            [](auto& c, auto& w) { return c.RemovePosition(w.integers[0]); }),
        OfCursor(
            "cursor.clear", "ov", 3, [](auto& t, auto& p, auto&) { return t.ClearList(p); },
            [](auto& c, auto&) { return c.RemoveAll(); }),
    };
}
} // namespace

std::vector<OperationKind> ListOperationKinds()
{
    std::vector<OperationKind> kinds = StoreOperations();
    for (OperationKind& kind : CursorOperations())
        kinds.push_back(kind);
    return kinds;
}
