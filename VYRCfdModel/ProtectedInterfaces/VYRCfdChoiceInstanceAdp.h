#ifndef VYRCfdChoiceInstanceAdp_H
#define VYRCfdChoiceInstanceAdp_H

/**
 * @file
 * The behaviour of Choices.
 */

#include <vector>

#include "ORXSimFeatureInstanceAdp.h"
#include "VYRCfdBaseExport.h"
#include "VYRCfdObjectAccess.h"

/**
 * The knowledge side of a feature of type "VYRCfdChoice", whose `value` is one of its `choices`. `Startups` is empty or
 * as long as `choices`, and names the feature type of the data object that comes with each choice; the object stands in
 * `Data` for as long as its choice is the value.
 *
 * Whatever is written to `value`, `choices` or `Startups`, by whomever, ends in an update, unless a configuration
 * bracket is open. Updates nest: an update that writes the default or the value is entered again from within that
 * write, and afterwards goes on with what it had read.
 *
 * Derive to take part in an update: the four protected operations are there to be replaced. Failures are reported and
 * leave the attributes as far as they were written.
 */
class VYRCfdBaseExport VYRCfdChoiceInstanceAdp : public ORXSimFeatureInstanceAdp
{
public:
    VYRCfdChoiceInstanceAdp();
    ~VYRCfdChoiceInstanceAdp() override;

    /// Told by the host of every write. What an update answers is not part of the answer.
    HRESULT AdviseAttributeChanged(const ORXUnicodeString& iName, const ORXIValue_var& iValue) override;

    /**
     * Sets the lists, the display text and the default, and updates. Opens no bracket: the writes in between run
     * updates of their own, which may see the new choices beside the old startups and report it.
     * @param iStartups empty, or as long as `iChoices`
     * @param iDefault empty leaves the default as it is; one that is no choice gives way to the first choice
     * @param iDisplay empty leaves the display text as it is
     * @return what `Update` answers; inside a bracket S_FALSE, and `iDefault` is forgotten
     */
    HRESULT Configure(const std::vector<ORXUnicodeString>& iChoices, const std::vector<ORXUnicodeString>& iStartups,
                      const ORXUnicodeString& iDefault, const ORXUnicodeString& iDisplay);
    /// The same for a Choice without startups; startups that it had are cleared.
    HRESULT Configure(const std::vector<ORXUnicodeString>& iChoices, const ORXUnicodeString& iDefault,
                      const ORXUnicodeString& iDisplay);

    /// Opens a bracket, which holds updates back. @return S_FALSE when one is open already: there is no counting
    HRESULT StartConfiguration();
    /// Closes the bracket, however often it was opened, and updates with an empty default.
    HRESULT CompleteConfiguration();

    /// Writes `value`, unchecked. @return S_OK whatever comes of the update that the write sets off
    HRESULT SetChoice(const ORXUnicodeString& iChoice);
    /// The attribute `value`. On failure `oChoice` stays as it was; `GetDefaultDisplay` likewise.
    HRESULT GetChoice(ORXUnicodeString& oChoice);
    /// The attribute `display`.
    HRESULT GetDefaultDisplay(ORXUnicodeString& oDisplay);
    /// Appends to `oListChoices`; linear in the choices.
    HRESULT GetListOfChoices(std::vector<ORXUnicodeString>& oListChoices);
    /// @return E_NOTIMPL, with nothing touched, the error status included
    HRESULT GetListOfChoicesNLS(std::vector<ORXUnicodeString>& oListChoices);

    /**
     * Brings the Choice up to date: checks the lists, makes `Data` match the value, publishes the allowed values,
     * settles the default, repairs a value that is no choice, applies the configurations recorded for the path "Data",
     * calls `CompleteUpdate` and sends a VYRCfdAttributeNotification if something changed. Linear in the choices, beside
     * what configuring the data object takes.
     * @param iDefault a new default; empty keeps that of default management. By value, since what it came from may
     * change on the way
     * @return S_FALSE when a bracket holds the update back; E_FAIL, reported, for lists that do not go together, an
     * empty list, and a Choice without default management
     */
    HRESULT Update(ORXUnicodeString iDefault);

protected:
    /**
     * Called at the end of every update that leaves the value one of the choices, or repaired.
     * @param wasValueChange the value was written since the last update that got so far
     * @param dataChange this update replaced or removed the data object
     * @return negative to fail the update, which then sends no notification
     *
     * An override that writes `value` each time it is called never ends: the write runs an update, which calls it.
     */
    virtual HRESULT CompleteUpdate(bool wasValueChange, bool dataChange);

    /// Names the data object to be made: the attribute `dataName`, or the startup and "Inst" behind it where that is
    /// empty. Nobody looks for uniqueness. On failure `oInstanceName` stays as it was.
    virtual HRESULT GetInstanceName(const VYRCfdObjectAccess& iObjectAccess, const ORXUnicodeString& iStartup,
                                    ORXUnicodeString& oInstanceName);

    /**
     * Makes `Data` match a startup: nothing for the empty one, otherwise an object of that type. An object of the right
     * type stays, with all that was set on it; nothing of another one is carried over. A startup that the host refuses
     * leaves the Choice without data object, and is a trace line, not a failure.
     * @param dataChange set when `Data` was replaced, removed or lost; never cleared
     */
    virtual HRESULT UpdateDataForStartup(const ORXUnicodeString& iStartup, bool& dataChange);

    /// Whether a value that is no choice is to be repaired. This class says yes; an override that says no ends the
    /// update there, successfully, and keeps the value.
    virtual ORXBoolean FixInvalidChoice();

private:
    class UpdateRun;

    /// A bracket is open.
    int _inConfiguration;
    /// `value` has been written since the last update that got as far as completing.
    ORXBoolean _wasValueChange;
};

#endif
