#ifndef TwinChoices_H
#define TwinChoices_H

/**
 * @file
 * The twin's Choices and their managers.
 */

#include "TwinDefaults.h"

namespace Twin
{
class Choices : public DefaultManagement
{
public:
    bool IsChoice(const Object& iObject) const { return IsKindOf(iObject, "VYRCfdChoice"); }
    /// Of the class of the tests whose hooks show themselves.
    bool IsHooked(const Object& iObject) const { return IsKindOf(iObject, "ChoiceTestHooked"); }
    bool IsManaged(const Object& iObject) const { return IsKindOf(iObject, "RandomManaged"); }

    HRESULT Configure(Object& ioChoice, const Texts& iChoices, const Texts& iStartups, const std::string& iDefault,
                      const std::string& iDisplay);
    HRESULT SetChoice(Object& ioChoice, const std::string& iChoice);
    virtual HRESULT StartConfiguration(Object& ioChoice);
    virtual HRESULT CompleteConfiguration(Object& ioChoice);
    HRESULT UpdateChoice(Object& ioChoice, const std::string& iDefault) override;

    HRESULT ConfigureManaged(Object& ioChoice, const Texts& iChoices, const std::string& iDefault,
                             const std::string& iDisplay);
    HRESULT Reset(Object& ioChoice, bool iKeepValue);
    HRESULT Prohibit(Object& ioChoice, const std::set<std::string>& iProhibited);
    virtual HRESULT AddChoices(Object& ioChoice, const std::set<std::string>& iAdded);

protected:
    void Advise(Object& ioObject, const std::string& iName, bool iIsThere, bool iIsTrue) override;
    bool Listens(const Object& iObject) const override;
    virtual HRESULT Apply(Object* ioObject, const std::string& iConfiguration) = 0;

    static Texts TextsOf(const Object& iObject, const std::string& iName);

private:
    void AdviseChoice(Object& ioChoice, const std::string& iName, bool iIsThere);
    void UpdateData(Object& ioChoice, const std::string& iStartup, bool& ioDataChange);
    void ApplyRecords(Object& ioChoice);
    void TakeData(Object& ioChoice);
};
} // namespace Twin

#endif
