#ifndef TypeDeclaration_H
#define TypeDeclaration_H

/**
 * @file
 * What a catalog says of its types, before anything of it is declared.
 */

#include <stdexcept>
#include <string>
#include <vector>

#include "ORXTypeCode.h"
#include "Scalar.h"

namespace VYRStandalone
{
struct AttributeDeclaration
{
    std::string name;
    int type = 0;
    /// Code of the entries of a list, otherwise 0.
    int listType = 0;
    /// Texts of an enumeration or of a list of enumerations.
    std::vector<std::string> texts{};
    /// Of a real or of a list of reals: what it measures; empty for a mere number.
    std::string unit{};
    /// An object carries the attribute only once it has been added to it.
    bool isOptional = false;
    /// Type of a component that comes into being with its owner; empty for none.
    std::string componentType{};
};

/// A value of the type's start-up.
struct PrototypeValue
{
    /// Names of attributes: components first, the value's own last. An inherited attribute is as good as an own one.
    std::vector<std::string> path;
    bool isList = false;
    /// One entry for a scalar; an unset entry takes the value away. Lists of values only.
    std::vector<DeclaredScalar> entries;
};

struct TypeDeclaration
{
    std::string name;
    /// Empty for none; for a type that stands already also: as it is.
    std::string base;
    std::vector<AttributeDeclaration> attributes;
    /// Applied in this order, after all types of the catalog are complete.
    std::vector<PrototypeValue> values;
    /// Somebody is to offer a manager for objects of the type.
    bool isManaged = false;
};

struct CatalogDeclaration
{
    std::string name;
    /// In any order: a type may name bases and component types that stand behind it.
    std::vector<TypeDeclaration> types;
};

/// A catalog that is refused; nothing of it has been declared.
class DeclarationError : public std::runtime_error
{
public:
    static constexpr std::size_t None = static_cast<std::size_t>(-1);

    DeclarationError(std::size_t iType, std::size_t iAttribute, std::size_t iValue, const std::string& iMessage)
        : std::runtime_error(iMessage), type(iType), attribute(iAttribute), value(iValue)
    {
    }

    /// Index into `CatalogDeclaration::types`.
    std::size_t type;
    /// Index into `TypeDeclaration::attributes`, None when the fault is not in an attribute.
    std::size_t attribute;
    /// Index into `TypeDeclaration::values`, None when the fault is not in a value.
    std::size_t value;
};
} // namespace VYRStandalone

#endif
