#ifndef ORXStatus_H
#define ORXStatus_H

/**
 * @file
 * This host's own statuses, in the place of the header of that name in host/. Names, type and numbers are the contract;
 * how they come about is the host's.
 */

typedef int HRESULT;

enum SecondHostStatus : HRESULT
{
    S_OK = 0,
    S_FALSE = 1,
    E_NOTIMPL = -2147467263,
    E_NOINTERFACE = -2147467262,
    E_FAIL = -2147467259
};

typedef unsigned char ORXBoolean;
enum SecondHostBoolean : ORXBoolean
{
    ORXFalse = 0,
    ORXTrue = 1
};

/// By which whoever compiles can tell that it was this header.
#define SecondHost_Status 1

#endif
