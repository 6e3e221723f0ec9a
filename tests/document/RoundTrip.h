#ifndef RoundTrip_H
#define RoundTrip_H

/**
 * @file
 * Saving a model and loading it again, and short words for writing what is then compared.
 */

#include <string>

#include "ORXISpecAttrAccess.h"
#include "VYRStandaloneModel.h"

/// That the model, saved and loaded, is the same in memory, and that saving that gives the same text.
void ExpectRoundTrip(const VYRStandalone::Model& iModel);

/// Key of an attribute that the object carries or may carry.
ORXISpecAttrKey_var KeyOf(const ORXISpecObject_var& iObject, const char* iName);

/// Object of an attribute, or of a list's entry.
ORXISpecObject_var ObjectAt(const ORXISpecObject_var& iObject, const char* iName, int iIndex = 0);

/// Writes and expects success. Index 0 is an attribute that is no list.
void WriteObjectAt(const ORXISpecObject_var& iObject, const char* iName, const ORXISpecObject_var& iValue,
                   int iIndex = 0);
void Append(const ORXISpecObject_var& iObject, const char* iName, const ORXISpecObject_var& iValue);
void WriteText(const ORXISpecObject_var& iObject, const char* iName, const ORXUnicodeString& iText);
void WriteReal(const ORXISpecObject_var& iObject, const char* iName, double iValue);
/// Also an enumeration, by the number of its text.
void WriteInteger(const ORXISpecObject_var& iObject, const char* iName, int iValue);
void WriteBoolean(const ORXISpecObject_var& iObject, const char* iName, bool iValue);

/// Takes the value of a scalar attribute away.
void Empty(const ORXISpecObject_var& iObject, const char* iName);

/// Adds an attribute to the object alone, or makes an optional one real. @return whether it could be added
bool Add(const ORXISpecObject_var& iObject, const ORXUnicodeString& iName, int iTypeCode, int iFlag = 0);

#endif
