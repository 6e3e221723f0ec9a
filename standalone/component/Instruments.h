#ifndef Instruments_H
#define Instruments_H

#include <string>
#include <string_view>

#include "ORXGuid.h"
#include "ORXStatus.h"

class ORXISpecAttrKey;

namespace VYRStandalone
{
class FeatureObject;

/**
 * What planted faults and recorders see of a host call. Every operation that may fail asks at its head; as long as this
 * thread has planted nothing and records nothing, that is the test of one flag.
 */
class Instruments
{
public:
    /// True when something is planted or recorded on this thread.
    static bool Active() noexcept { return s_faults || s_recorder != nullptr; }
    static bool IsRecording() noexcept { return s_recorder != nullptr; }

    /// True when a planted fault meets this call, which is counted. @param iObject null for a call without an object
    static bool Fails(const char* iOperation, std::string_view iSubject, const FeatureObject* iObject,
                      HRESULT& oStatus);

    /// The same for an attribute operation.
    static bool Fails(const char* iOperation, ORXISpecAttrKey* iKey, const FeatureObject* iObject, HRESULT& oStatus);

    /// For operations without a status.
    template <class Subject>
    static bool Fails(const char* iOperation, const Subject& iSubject, const FeatureObject* iObject)
    {
        HRESULT status = S_OK;
        return Fails(iOperation, iSubject, iObject, status);
    }

    /// What a planted fault makes of a read that answers a value.
    enum class Answer
    {
        Value,
        Null,
        Unset
    };
    static Answer AnswerOf(const char* iOperation, std::string_view iSubject, const FeatureObject* iObject);

    /// For casts of components that are no objects. Gives null when it is true.
    static bool FailsCast(const IID& iInterface, void** oInterface, HRESULT& oStatus);

    /// Adds a line to every recorder of this thread.
    static void Record(const std::string& iLine);

    /// Name of the attribute of a key of any origin; "" for null.
    static std::string NameOf(ORXISpecAttrKey* iKey);

private:
    friend class InstrumentState;

    // Of the cheapest model, since every operation reads them.
    [[gnu::tls_model("initial-exec")]] static constinit thread_local bool s_faults;
    /// The innermost recorder.
    [[gnu::tls_model("initial-exec")]] static constinit thread_local void* s_recorder;
};
} // namespace VYRStandalone

#endif
