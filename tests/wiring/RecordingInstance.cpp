#include "RecordingInstance.h"

#include "FlowTest.h"

HRESULT RecordingInstance::QueryInterface(const IID& iInterface, void** oInterface)
{
    if (!(iInterface == IID_ORXIInstance))
        return ORXIInstance::QueryInterface(iInterface, oInterface);
    AddRef();
    *oInterface = static_cast<ORXIInstance*>(this);
    return S_OK;
}

HRESULT RecordingInstance::AdviseAttributeChanged(const ORXUnicodeString& iName, const ORXIValue_var& iValue)
{
    return Note("changed " + std::string(iName.CastToCharPtr()) + " = " + TextOf(iValue));
}

HRESULT RecordingInstance::AdviseDynamicAttributeAdded(const ORXUnicodeString& iName)
{
    return Note("added " + std::string(iName.CastToCharPtr()));
}

HRESULT RecordingInstance::AdviseDynamicAttributeRemoved(const ORXUnicodeString& iName)
{
    return Note("removed " + std::string(iName.CastToCharPtr()));
}

HRESULT RecordingInstance::AdviseDynamicAttributeRenamed(const ORXUnicodeString& iOldName,
                                                         const ORXUnicodeString& iNewName)
{
    return Note("renamed " + std::string(iOldName.CastToCharPtr()) + " " + iNewName.CastToCharPtr());
}

HRESULT RecordingInstance::AdviseRemoved()
{
    return Note("gone");
}

HRESULT RecordingInstance::AdviseModification()
{
    return Note("modified");
}

HRESULT RecordingInstance::AdviseTypeChanged(const ORXICkeType_var&)
{
    return Note("type");
}

HRESULT RecordingInstance::AdviseSpecificEvent(const ORXUnicodeString& iEvent)
{
    return Note("event " + std::string(iEvent.CastToCharPtr()));
}

HRESULT RecordingInstance::Note(const std::string& iText)
{
    told.push_back(iText);
    return S_OK;
}
