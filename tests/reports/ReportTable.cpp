#include "ReportTable.h"

#include <sstream>

const ReportRows& ReportTable()
{
    static const ReportRows table = [] {
        ReportRows rows;
        AddCursorReadReports(rows);
        AddCursorWriteReports(rows);
        AddCursorListReports(rows);
        AddConditionReports(rows);
        AddDefaultReports(rows);
        AddChoiceReports(rows);
        AddManagerReports(rows);
        AddConfigurationReports(rows);
        return rows;
    }();
    return table;
}

std::string AnswerOf(HRESULT iStatus)
{
    if (iStatus == S_OK)
        return "S_OK";
    if (iStatus == S_FALSE)
        return "S_FALSE";
    if (iStatus == E_FAIL)
        return "E_FAIL";
    std::ostringstream text;
    text << "0x" << std::hex << static_cast<unsigned int>(iStatus);
    return text.str();
}

std::string AnswerOf(bool iAnswer)
{
    return iAnswer ? "true" : "false";
}
