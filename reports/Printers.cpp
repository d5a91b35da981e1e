// Opens with its header: reports/Printers.h.
#include "reports/Printers.h"

#include <cups/cups.h>

namespace {

// All destinations of the server, freed at the end of the scope.
class Dests {
public:
    Dests() : count_(cupsGetDests2(CUPS_HTTP_DEFAULT, &dests_)) {}
    ~Dests() { cupsFreeDests(count_, dests_); }
    Dests(const Dests&) = delete;
    Dests& operator=(const Dests&) = delete;

    const cups_dest_t* begin() const { return dests_; }
    const cups_dest_t* end() const { return dests_ + count_; }
    const cups_dest_t* Find(const std::string& name) const {
        return cupsGetDest(name.c_str(), nullptr, count_, dests_);
    }

private:
    cups_dest_t* dests_ = nullptr;
    int count_;
};

}  // namespace

std::vector<std::string> Printer_List() {
    std::vector<std::string> names;
    for (const cups_dest_t& d : Dests())
        if (!d.instance) names.emplace_back(d.name);
    return names;
}

std::string Printer_Default() {
    for (const cups_dest_t& d : Dests())
        if (d.is_default && !d.instance) return d.name;
    return {};
}

int Printer_JobCount(const std::string& printer) {
    if (printer.empty()) return -1;
    cups_job_t* jobs = nullptr;
    const int n = cupsGetJobs2(CUPS_HTTP_DEFAULT, &jobs, printer.c_str(), 0, CUPS_WHICHJOBS_ACTIVE);
    cupsFreeJobs(n < 0 ? 0 : n, jobs);
    if (n < 0 || (n == 0 && cupsLastError() > IPP_STATUS_OK_EVENTS_COMPLETE)) return -1;
    return n;
}

bool Printer_PrintFile(const std::string& printer, const std::string& path, const std::string& title) {
    if (printer.empty()) return false;
    return cupsPrintFile2(CUPS_HTTP_DEFAULT, printer.c_str(), path.c_str(), title.c_str(), 0, nullptr) > 0;
}

bool Printer_Options(const std::string& printer, std::vector<std::string>& lines) {
    lines.clear();
    Dests dests;
    const cups_dest_t* d = dests.Find(printer);
    if (!d) return false;
    for (int i = 0; i < d->num_options; ++i)
        lines.push_back(std::string(d->options[i].name) + "=" + d->options[i].value);
    return true;
}
