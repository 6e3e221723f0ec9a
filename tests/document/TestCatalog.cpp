#include "TestCatalog.h"

#include "VYRStandaloneCatalog.h"

namespace TestCatalog
{
void Declare()
{
    VYRStandalone::DeclareCatalog(R"({
        "catalog": "DocumentTest",
        "types": [
            {"name": "Part", "attributes": [{"name": "size", "kind": "real", "default": 2.5},
                                            {"name": "label", "kind": "string"},
                                            {"name": "inside", "kind": "component"}]},
            {"name": "SubPart", "base": "Part", "attributes": [{"name": "extra", "kind": "integer", "default": 3}]},
            {"name": "Everything", "attributes": [
                {"name": "real", "kind": "real"},
                {"name": "integer", "kind": "integer"},
                {"name": "boolean", "kind": "boolean"},
                {"name": "enumeration", "kind": "enumeration", "values": ["low", "high"]},
                {"name": "string", "kind": "string"},
                {"name": "preset", "kind": "string", "default": "given"},
                {"name": "reals", "kind": "list", "of": "real", "default": [1, 2.5]},
                {"name": "integers", "kind": "list", "of": "integer"},
                {"name": "booleans", "kind": "list", "of": "boolean"},
                {"name": "enumerations", "kind": "list", "of": "enumeration", "values": ["low", "high"]},
                {"name": "strings", "kind": "list", "of": "string"},
                {"name": "part", "kind": "component", "type": "Part"},
                {"name": "anything", "kind": "component"},
                {"name": "parts", "kind": "list", "of": "component"},
                {"name": "other", "kind": "reference"},
                {"name": "others", "kind": "list", "of": "reference"}],
             "startup": {"part": {"label": "of the owner"}}},
            {"name": "Rich", "base": "Everything", "attributes": [
                {"name": "length", "kind": "real", "unit": "m", "default": "5 mm"},
                {"name": "lengths", "kind": "list", "of": "real", "unit": "m", "default": [1, "2 cm"]},
                {"name": "pressure", "kind": "real", "unit": "Pa"},
                {"name": "mayReal", "kind": "real", "optional": true, "default": 1.5},
                {"name": "mayLength", "kind": "real", "unit": "m", "optional": true},
                {"name": "mayInteger", "kind": "integer", "optional": true},
                {"name": "mayBoolean", "kind": "boolean", "optional": true},
                {"name": "mayEnumeration", "kind": "enumeration", "values": ["low", "high"], "optional": true},
                {"name": "mayString", "kind": "string", "optional": true, "default": ""},
                {"name": "mayReference", "kind": "reference", "optional": true},
                {"name": "mayStrings", "kind": "list", "of": "string", "optional": true, "default": ["a"]},
                {"name": "mayOthers", "kind": "list", "of": "reference", "optional": true}]}]})",
                                  "DocumentTest");
}

std::string Model(const std::string& iObjects)
{
    return R"({"model": 1, "catalogs": ["DocumentTest"], "objects": [)" + iObjects + "]}";
}

std::string ModelOfValues(const std::string& iValues)
{
    return Model(R"({"type": "Everything", "name": "E", "values": {)" + iValues + "}}");
}
} // namespace TestCatalog
