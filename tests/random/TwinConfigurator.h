#ifndef TwinConfigurator_H
#define TwinConfigurator_H

/**
 * @file
 * The whole twin: configurations on top of everything else.
 */

#include "RandomTypes.h"
#include "TwinChoices.h"

namespace Twin
{
class Configurator : public Choices
{
public:
    HRESULT Apply(Object* ioObject, const std::string& iConfiguration) override;

private:
    using Records = std::vector<Object*>;

    HRESULT ApplyItem(Object& ioObject, const RandomItem& iItem, Records& ioRecords);
    HRESULT ApplyChoiceItem(Object& ioObject, const RandomItem& iItem, Records& ioRecords);
    HRESULT ApplyDefault(Object& ioObject, const RandomItem& iItem, Records& ioRecords);
    void ApplyConditional(Object& ioObject, const RandomItem& iItem, Records& ioRecords);
    Object* MakeRecord();
    void WriteRecord(Object& ioRecord, const std::vector<std::pair<const char*, std::string>>& iTexts);
};
} // namespace Twin

#endif
