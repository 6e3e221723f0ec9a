#include "Rows.h"
namespace Bench {
#define T(n) std::vector<Line> n(const Settings&) { return {}; }
T(CopyAndScopeRow) T(ColdLoadRow) T(DefaultsRow) T(ScalingRow) T(SetListRow) T(ChoiceRow) T(MemoryRow) T(LoadAndSaveRow)
double ColdLoadInChild(const std::string&, const std::string&) { return -1; }
}
