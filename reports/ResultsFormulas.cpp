// A part of reports/mdlFileOutput.h.
#include <array>
#include <string_view>

#include "base/NumberFormat.h"
#include "calc/mdlCulcurate.h"
#include "core/Tables.h"
#include "reports/ResultsLine.h"
#include "reports/mdlFileOutput.h"

namespace {

struct FormulaLine {
    int blanks;
    std::string_view text;
};

// The text speaks of "Jb", of "RationIn" and of a product where the
// calculation adds; J below is the components' load inertia alone.
constexpr std::array<FormulaLine, 9> kInertiaLines = {{
    {8, "RatioIn=1.0"},
    {8, "RatioOut=ratio"},
    {8, "J=Jb"},
    {8, "FOR i%=1 TO ElementCount%"},
    {12, "RatioIn=RatioOut"},
    {12, "RatioOut=RatioOut*Param(i%).ratio"},
    {12, "JL=Param(i%).inert0 * (RationIn) ^ 2 * Param(i%).inert1 * (RatioOut)^2"},
    {12, "J + JL"},
    {8, "NEXT i%"},
}};

constexpr std::array<FormulaLine, 45> kTorqueLines = {{
    {4, "<Torque Calculation> N\xB7m"},
    {8, "T=a*(Jm+Jb)"},
    {8, "RatioIn=1.0"},
    {8, "RatioOut=1.0"},
    {8, "Tfric=0"},
    {8, "FOR i%=1 TO ElementCount%"},
    {12, "RatioIn=RatioOut"},
    {12, "RatioOut=RatioOut*Param(i%).ratio"},
    {12, "koritu=1.0"},
    {12, "FOR j%=1 to i%"},
    {16, "koritu=koritu*Param(j%).eff"},
    {12, "NEXT j%"},
    {12, "Tin=Param(i%).inert0*(RationIn)^2*a/koritu"},
    {12, "Tout=Param(i%).inert1*(RationOut)^2*a/koritu"},
    {12, "Tex=Param(i%).exforce*RatioOut/koritu"},
    {12, "T=Tin+Tout+Tex"},
    {12, "Tfric=Tfric+ABS(Param(i%).fric*RatioOut*Param(i%).inert1*G)/koritu"},
    {8, "NEXT i%"},
    {8, ""},
    {12, "(Special Mechanism)"},
    {16, "1) Cart"},
    {20, "T=(Jm+Jb+JL/[1])*a"},
    {8, ""},
    {16, "2) Pinion-driven cart"},
    {20, "Ta=(Jm+Jb+JL/[1])*a"},
    {20, "Tfric=ABS([10]*m_all*ratio2*G/[1])"},
    {8, ""},
    {8, "SELECT CASE SGN(v1+v2)"},
    {8, "CASE -1"},
    {12, "T=T-Tfric"},
    {8, "CASE 0"},
    {12, "Ttemp=T-SGN(T)*Tfric"},
    {12, "IF SGN(Ttemp)<>SGN(T) THEN"},
    {16, "T=0"},
    {12, "ELSE"},
    {16, "T=Ttemp"},
    {12, "END IF"},
    {8, "CASE 1"},
    {12, "T=T+Tfric"},
    {8, "END SELECT"},
    {8, ""},
    {4, "<Regeneration> J"},
    {8, "IF SGN((v1+v2)/2)<>SGN(T) THEN"},
    {12, "R=ABS((v1+v2)/2*T*time*2*PI/60)"},
    {8, "END IF"},
}};

template <std::size_t N>
void Print_Lines(const std::array<FormulaLine, N>& lines) {
    for (const FormulaLine& line : lines) Results_Print(line.blanks, line.text, true);
}

}  // namespace

void Results_Inertia() {
    Results_Print(0, "", true);
    Results_Print(4, "<Inertia Calculation> kg\xB7m\xB2", true);
    Print_Lines(kInertiaLines);
    double J = 0, ratio = 0;
    Chain_Inertia(1, static_cast<int16_t>(ElementCount - 1), J, ratio);
    Results_Print(0, "", true);
    Results_Print(8, "J=" + NumberText(J), true);
}

void Results_Torque() {
    Results_Print(0, "", true);
    Print_Lines(kTorqueLines);
}
