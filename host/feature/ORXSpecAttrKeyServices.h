#ifndef ORXSpecAttrKeyServices_H
#define ORXSpecAttrKeyServices_H

/**
 * @file
 * Record of a generated attribute key. Link-time seam.
 */

#include "ORXISpecAttrAccess.h"

/// A writable static of a generated key set. The texts are literals.
struct ORXHostExport ORXSpecAttrKeyServices
{
    /// The attribute, its feature type, and the catalog that declares the type.
    /// @{
    const char* catalog;
    const char* featureType;
    const char* attribute;
    /// @}
    /// The key, once found; written by the service only.
    ORXISpecAttrKey* key;

    /**
     * Finds the key of the record's attribute as the record's feature type declares it, through an object of that
     * type or of one that derives from it, and keeps it.
     * @return borrowed, valid until the process ends; null when `iAccess` is null, is an object of a foreign type, or
     *         the type has no such attribute; a null is not kept
     */
    ORXISpecAttrKey* Get(ORXISpecAttrAccess* iAccess);
};

#endif
