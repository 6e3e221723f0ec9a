#ifndef HostUnderTest_H
#define HostUnderTest_H

/**
 * @file
 * All that the contract suite needs of a host and that `host/` does not offer: what a host does its own way. A host
 * that is to be held to the suite implements this header in one file; nothing else of the suite knows which host it is.
 */

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "ORXIContainer.h"
#include "ORXISpecObject.h"
#include "ORXNotification.h"

namespace HostUnderTest
{
/**
 * Declares the feature types of the suite in the catalog "Contract"; a second call finds them standing.
 *
 *     ContractPlain      ratio real = 0.5; count integer = 3; on boolean; mode, pace enumeration (low, high), mode =
 * low; title string; reals = [1.5, 2.5], counts = [4, 5], flags = [true, false], modes = [high] of (low, high), names =
 * [a, b]: lists; part component, comes as a ContractPart; loose component; parts list of components; ref reference;
 * refs list of references ContractPart       size real = 1; inner component, comes as a ContractLeaf ContractLeaf mark
 * integer = 7 ContractDerived    from ContractPlain: extra string = x; ratio = 0.75, names = [c], size of part = 2,
 *                        mark of part's inner = 8
 *     ContractListening, ContractDeepListening    from ContractPlain and from each other, for extension classes
 *     ContractOther      ratio real; part component
 *     ContractMeasured   from ContractListening: reals with units: length, "mm", = 5 mm; span "km"; depth "m" = 2 m;
 *                        pressure "kPa" = 1 atm; temperature "K"; angle "rad"; share "percent"; lengths list "m" = [1
 * mm, 2] ContractOptional   from ContractListening, all optional: oreal real = 1.5, ointeger, oboolean, oenumeration
 *                        (low, high), ostring, oref reference, onames list of strings = [a], orefs list of references
 */
void DeclareTypes();

/// One container and what it holds.
class Model
{
public:
    Model();
    ~Model();
    Model(const Model&) = delete;
    Model& operator=(const Model&) = delete;

    ORXIContainer_var Container() const;

    /// Lets the objects go. The container stays and is empty.
    void Close();

private:
    class Content;
    std::unique_ptr<Content> m_content;
};

/// An empty table column outside every model.
ORXISpecObject_var MakeColumn();

/// Name as the user sees it, and identifier; the empty text takes them away.
void GiveAlias(const ORXISpecObject_var& iObject, const ORXUnicodeString& iAlias);
void GiveIdentifier(const ORXISpecObject_var& iObject, const ORXUnicodeString& iIdentifier);

/// Components that are alive and can die. A value counts once it is held beyond what it was the value of.
int LiveComponents();

/// References on a component: on an object those of its facets and parameters too.
unsigned int ReferencesOn(ORXBaseUnknown* iComponent);

/// True when the call ended with the fatal reaction to a call through a null handle.
bool EndsByNullHandle(const std::function<void()>& iCall);
/// True when the call ended with the fatal reaction to an unexpected null pointer.
bool EndsByNullPointer(const std::function<void()>& iCall);

/// Receives the notifications of an object for as long as the subscription lives.
class Subscription
{
public:
    using Callback = std::function<void(ORXNotification& ioNotification)>;

    Subscription(const ORXBaseUnknown_var& iObject, Callback iCallback);
    ~Subscription();
    Subscription(const Subscription&) = delete;
    Subscription& operator=(const Subscription&) = delete;

private:
    class Content;
    std::unique_ptr<Content> m_content;
};

/// One line a report, oldest first, and none left: `assertion|error|call "TEXT" FUNCTION FILE:LINE STATUS`.
std::vector<std::string> TakeReports();
unsigned char ErrorStatus();

/// A variable of the installation; `Unset` as if it had never been set.
void SetOfficialVariable(const std::string& iName, const std::string& iValue);
void UnsetOfficialVariable(const std::string& iName);

/// Sends what all channels print to a sink, as it is printed; an empty function restores their outputs.
void RedirectTraces(std::function<void(const std::string& iText)> iSink);
} // namespace HostUnderTest

#endif
