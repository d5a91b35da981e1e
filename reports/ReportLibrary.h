// The operations of the report engine that the print routines call: load a
// template, fill its named objects with texts and pictures or hide them, and
// print pages of it. Every result of 0 means failure, except wrLoadReport,
// which gives -1. The real engine renders our SVG templates; the recording
// engine notes every call, for the command line's object listing and the tests.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

// The property record of wrSetObjectProp. Only the all-zero record is used:
// with "VISIBLE" it hides the object.
struct ReportProperty {
    std::array<unsigned char, 248> bytes{};
    bool AllZero() const;
};

class ReportLibrary {
public:
    virtual ~ReportLibrary() = default;

    virtual int32_t wrInit(int32_t& work) = 0;
    virtual int32_t wrExit(int32_t& work) = 0;
    virtual int32_t wrSetErrorDispMode(int32_t mode) = 0;
    virtual int32_t wrLoadReport(const std::string& path) = 0;
    virtual int32_t wrUnloadReport(int32_t handle) = 0;
    virtual int32_t wrSetPrintMode(int32_t handle, int32_t mode) = 0;
    virtual int32_t wrSetPrinterDevice(int32_t handle, const std::string& printer) = 0;
    // Texts are single-byte; CR LF starts a new line.
    virtual int32_t wrSetText(int32_t handle, const std::string& object, const std::string& text) = 0;
    virtual int32_t wrSetObjectProp(int32_t handle, const std::string& object, const std::string& property,
                                    const ReportProperty& record) = 0;
    virtual int32_t wrLoadDIB(int32_t handle, const std::string& object, const std::string& bitmapPath) = 0;
    virtual int32_t wrGetErrorCode(int32_t handle, int32_t which) = 0;
    virtual int32_t wrOpenPrinter(int32_t handle, std::uintptr_t window, int32_t flags) = 0;
    // pages: page numbers ended by 0.
    virtual int32_t wrPrint(int32_t handle, const int32_t* pages, const std::string& text) = 0;
    virtual int32_t wrClosePrinter(int32_t handle, int32_t a, int32_t b) = 0;
};
