#ifndef ORXMetaClass_H
#define ORXMetaClass_H

/**
 * @file
 * Descriptions of classes, and the functions that make them. Link-time seam.
 */

#include <cstddef>

#include "ORXExport.h"
#include "ORXGuid.h"

/// What a meta class describes. The numbers are the component model's.
enum ENUMTypeOfClass
{
    ORXInterfaceClass = 1,
    ORXExtensionClass = 2,
    /// A tie that is made anew at each request.
    ORXTieClass = 6,
    /// A tie that is shared by all requests on one object, as long as somebody holds it.
    ORXSharedTieClass = 7
};

/**
 * Describes an interface, an extension class or a tie. Meta classes are made once, under `qlx::internal::om_guard`,
 * and live until the process ends.
 */
class ORXHostExport ORXMetaClass
{
public:
    /// Made by the functions below. The texts are borrowed and must live until the process ends. @param iServed of a
    /// tie, the extension class that it forwards to
    ORXMetaClass(const char* iClassName, ENUMTypeOfClass iKind, const IID& iInterface, ORXMetaClass* iBase,
                 const char* iLateType, ORXMetaClass* iServed = nullptr);

    /// Borrowed, valid until the process ends.
    const char* ClassName() const noexcept { return m_className; }
    /// What it describes.
    ENUMTypeOfClass Kind() const noexcept { return m_kind; }
    /// Identifier of the interface; of a class that is no interface, that of its base.
    const IID& InterfaceId() const noexcept { return m_interface; }
    /// Meta class of the base; borrowed, null for none.
    ORXMetaClass* Base() const noexcept { return m_base; }
    /// Name of the feature type that an extension class extends; empty for everything else.
    const char* LateType() const noexcept { return m_lateType; }

    /// Of a tie, the extension class that it forwards to; null for everything else.
    ORXMetaClass* Served() const noexcept { return m_served; }

    /// Nonzero when the class or one of its bases bears the name.
    int IsAKindOf(const char* iClassName) const noexcept;

    ORXMetaClass(const ORXMetaClass&) = delete;
    ORXMetaClass& operator=(const ORXMetaClass&) = delete;

private:
    const char* m_className;
    ENUMTypeOfClass m_kind;
    IID m_interface;
    ORXMetaClass* m_base;
    const char* m_lateType;
    ORXMetaClass* m_served;
};

namespace qlx::internal
{
/**
 * Makes the meta class of an extension class.
 * @param iBase meta class of the interface that the class implements or stands for
 * @param iLateType name of the feature type that is extended; the text must live until the process ends
 * @param iFramework name of the framework that the class comes from, kept for diagnostics
 * @param iSize size of an instance in bytes
 * @return borrowed, valid until the process ends
 */
ORXHostExport ORXMetaClass* fct_RetrieveMetaObject(const char* iClassName, ENUMTypeOfClass iKind, ORXMetaClass* iBase,
                                                   const char* iLateType, const char* iFramework, std::size_t iSize);

/// Makes the meta class of a tie between an interface and an extension class. Borrowed, valid until the process ends.
ORXHostExport ORXMetaClass* Tie_InitMetaObject(const GUID& iInterfaceId, const char* iInterfaceName,
                                               ORXMetaClass* iInterface, ORXMetaClass* iClass, ENUMTypeOfClass iKind);

/// Scoped lock of the object model, held while a meta class is made. It may be taken again on the same thread.
class ORXHostExport om_guard
{
public:
    om_guard();
    ~om_guard();
    om_guard(const om_guard&) = delete;
    om_guard& operator=(const om_guard&) = delete;
};
} // namespace qlx::internal

#endif
