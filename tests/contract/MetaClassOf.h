#ifndef MetaClassOf_H
#define MetaClassOf_H

#include "ContractTest.h"
#include "ORXMetaClass.h"

/// The meta class of an interface is one for the process, and tells name, kind and identifier.
template <class Interface> void ExpectMetaClassOf(const char* iName)
{
    const ORXMetaClass* const meta = Interface::MetaObject();
    ASSERT_NE(meta, nullptr);
    EXPECT_EQ(Interface::MetaObject(), meta);
    EXPECT_STREQ(meta->ClassName(), iName);
    EXPECT_EQ(meta->Kind(), ORXInterfaceClass);
    EXPECT_TRUE(meta->InterfaceId() == Interface::ClassId());
    EXPECT_NE(meta->IsAKindOf(iName), 0);
}

#endif
