#include "ReportTable.h"

#include "VYRCfdObjectCondition.h"

void AddConditionReports(ReportRows& ioRows)
{
    struct Row
    {
        const char* operation;
        const char* condition;
        const char* attribute;
    };
    for (const Row& row : {Row{"GetDouble", "ratio=0.5", "ratio"}, Row{"GetInteger", "count=4", "count"},
                           Row{"GetString", "title=cavity", "title"}, Row{"GetBoolean", "flag=true", "flag"}})
        ioRows.push_back({FailedCall("varAccess." + std::string(row.operation) + "(value)",
                                     "VYRCfdObjectCondition::operator bool"),
                          [row](ReportBench& ioBench) {
                              const VYRCfdObjectCondition condition(ioBench.At("(object)"), row.condition);
                              FailCall("GetValue", row.attribute);
                              return AnswerOf(static_cast<bool>(condition));
                          },
                          "false",
                          {Assertion("spVal", "VYRCfdObjectAccess::" + std::string(row.operation))}});
}
