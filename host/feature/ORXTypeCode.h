#ifndef ORXTypeCode_H
#define ORXTypeCode_H

/**
 * @file
 * Codes of attribute types, as `ORXISpecAttrKey` answers them and `ORXISpecObject::AddAttribute` takes them.
 */

/// The numbers are part of the interface.
enum ORXTypeCode : int
{
    tk_double = 7,
    tk_boolean = 8,
    /// Entries of a list of enumerations are read and written as integers, counted from 1.
    tk_enum = 17,
    tk_string = 18,
    /// The value is a feature object that the attribute only refers to.
    tk_specobject = 23,
    /// `ORXISpecAttrKey::GetListType` tells the type of the entries.
    tk_list = 25,
    /// The value is a feature object that the attribute's object owns.
    tk_component = 26,
    tk_integer = 28
};

#endif
