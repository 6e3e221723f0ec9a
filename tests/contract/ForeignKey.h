#ifndef ForeignKey_H
#define ForeignKey_H

#include "ORXISpecAttrKey.h"

/// A key that is not the host's, though it says that it stands for "ratio".
class ForeignKey : public ORXISpecAttrKey
{
public:
    int GetListType() override { return 0; }
    int GetType() override { return tk_double; }
    ORXUnicodeString GetName() override { return "ratio"; }
};

#endif
