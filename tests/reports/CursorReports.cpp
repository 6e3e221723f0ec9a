#include "CursorReports.h"

std::string In(const std::string& iOperation)
{
    return "VYRCfdObjectAccess::" + iOperation;
}

void AddCursorRows(ReportRows& ioRows, const char* iOperation, const CursorCases& iCases, const std::string& iAnswer)
{
    for (const CursorCase& one : iCases)
    {
        const bool isHandedOn = one.kind == FailedCall_ && *one.fault != '\0';
        ReportRow row;
        row.record = {one.kind, one.text, In(iOperation), isHandedOn ? Handed : E_FAIL};
        row.provoke = [one](ReportBench& ioBench) {
            const VYRCfdObjectAccess cursor = ioBench.At(one.place);
            if (*one.fault != '\0')
                FailCall(one.fault, "", "", Handed);
            return one.call(cursor);
        };
        row.answer = isHandedOn ? HandedAnswer : iAnswer;
        row.before = one.before;
        if (one.text == std::string(BrokenText))
            row.source = "_error";
        ioRows.push_back(std::move(row));
    }
}
