#ifndef ObjectNames_H
#define ObjectNames_H

#include "ORXIAlias.h"
#include "VYRIFldIdentifier.h"

namespace VYRStandalone
{
class FeatureObject;

/// Facet of an object that was given an alias; counted on the object.
class AliasFacet final : public ORXIAlias
{
public:
    explicit AliasFacet(FeatureObject& iObject) : m_object(iObject) {}

    using ORXBaseUnknown::QueryInterface;
    HRESULT QueryInterface(const IID& iInterface, void** oInterface) override;
    unsigned int AddRef() override;
    unsigned int Release() override;
    ORXBaseUnknown* GetImpl(int iKind) const override;
    ORXUnicodeString GetAlias() override { return text; }

    ORXUnicodeString text;

private:
    FeatureObject& m_object;
};

/// Facet of an object that was given an identifier; counted on the object.
class IdentifierFacet final : public VYRIFldIdentifier
{
public:
    explicit IdentifierFacet(FeatureObject& iObject) : m_object(iObject) {}

    using ORXBaseUnknown::QueryInterface;
    HRESULT QueryInterface(const IID& iInterface, void** oInterface) override;
    unsigned int AddRef() override;
    unsigned int Release() override;
    ORXBaseUnknown* GetImpl(int iKind) const override;
    void GetIdentifier(ORXUnicodeString& oIdentifier) override { oIdentifier = text; }

    ORXUnicodeString text;

private:
    FeatureObject& m_object;
};

/// The names that only some objects have; an empty text is none.
class ObjectNames
{
public:
    explicit ObjectNames(FeatureObject& iObject) : alias(iObject), identifier(iObject) {}

    AliasFacet alias;
    IdentifierFacet identifier;
};
} // namespace VYRStandalone

#endif
