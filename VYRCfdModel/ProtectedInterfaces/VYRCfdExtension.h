#ifndef VYRCfdExtension_H
#define VYRCfdExtension_H

/**
 * @file
 * What extension classes have in common: those of the module, and those of libraries that derive from its adapters.
 */

#include <atomic>

#include "ORXBaseUnknown.h"
#include "ORXMetaClass.h"

/**
 * Gives an extension class its meta class and the answers that follow from it. `Class` names itself and what it extends
 * by three static members: `ClassName`, `LateType` and `BaseMeta()`, the meta class of the interface that it stands
 * for. A class of another framework redefines `Framework`.
 */
template <class Class, class Base> class VYRCfdExtension : public Base
{
public:
    /// The framework of the class, kept for diagnostics.
    static constexpr const char* Framework = "VYRCfdModel";

    /// That of `Class`; borrowed, valid until the process ends.
    ORXMetaClass* GetMetaObject() const override { return MetaObject(); }
    /// `ClassName` of `Class`.
    const char* IsA() const override { return MetaObject()->ClassName(); }
    /// Nonzero for the name of `Class` and those of its bases.
    int IsAKindOf(const char* iClassName) const override { return MetaObject()->IsAKindOf(iClassName); }

    /// Made once, under the lock of the object model; the first look is outside the lock.
    static ORXMetaClass* MetaObject()
    {
        ORXMetaClass* meta = s_meta.load(std::memory_order_acquire);
        if (meta != nullptr)
            return meta;
        const qlx::internal::om_guard guard;
        meta = s_meta.load(std::memory_order_relaxed);
        if (meta == nullptr)
        {
            meta = qlx::internal::fct_RetrieveMetaObject(Class::ClassName, ORXExtensionClass, Class::BaseMeta(),
                                                         Class::LateType, Class::Framework, sizeof(Class));
            s_meta.store(meta, std::memory_order_release);
        }
        return meta;
    }

    /// New object, owned by the feature that it is linked to.
    static ORXBaseUnknown* Construct() { return new Class; }

    /// Handed to the object model with each tie of the class.
    static inline void* s_sharedSlot = nullptr;

private:
    static inline std::atomic<ORXMetaClass*> s_meta = nullptr;
};

#endif
