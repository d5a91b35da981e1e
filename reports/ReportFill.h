// What each page of the printed report shows: the routines that fill the
// named objects of the templates from the document and from what the print
// dialog holds. Each call that fails sets ReportFailed and stops its routine.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "reports/ReportLibrary.h"

// What the print dialog gives the report beside the document.
struct PrintRequest {
    std::string printer;                   // CboPrinter
    std::array<std::string, 6> txtData{};  // header left, centre, right; footer left, centre, right
    std::string comment;                   // txtComment as the box shows it
    std::array<int16_t, 5> PrintCheck{};   // chkPrint(0) to chkPrint(3), chkTemp
    std::string attachment;                // txtTemp
    std::string date;                      // the date the pages print, "Nov.14,2026"
};

// The check boxes, by their index in PrintCheck.
enum PrintItem { kPrintCover = 0, kPrintElements = 1, kPrintNotes = 2, kPrintPattern = 3, kPrintAttachment = 4 };

// The date as the report prints it: "Nov.14,2026".
std::string Report_Date(int year, int month, int day);

// Today's date in that form, from the local clock.
std::string Report_Today();

// Pages of the component settings for a chain of count elements, motor included.
int Report_ElementPages(int16_t count);

// The objects of one loaded template, and the failure flag of its filling.
struct ReportFill {
    ReportLibrary& wr;
    int32_t ReportHandle;
    const PrintRequest& request;
    int16_t ReportFailed = 0;

    // Sets one text; false (and ReportFailed) on failure.
    bool Text(const std::string& object, const std::string& text);
    // Hides one object; false (and ReportFailed) on failure.
    bool Hide(const std::string& object);

    // kind 0 cover, 1 component pages, 2 pattern page.
    void Report_PageNo(int kind);
    void Report_HeadFoot(int kind);
    void Report_Customer();
    void Report_Administrator();
    void Report_System();
    void Report_Result();
    // Element blocks 0 to last; the blocks behind last are hidden.
    void Report_Elements(int last);
    void SetNonVisible(int k);
    // The picture of a component type into the object; false when the type
    // has no picture or the load fails.
    bool EleImg_Set(int16_t type, const std::string& object);
    void Report_Graph();
    void Report_Pattern();
};

// The bitmap file of a component type below BMP_data ("rotoro1.bmp"), or ""
// for a type without a picture.
std::string Report_PictureFile(int16_t type);
