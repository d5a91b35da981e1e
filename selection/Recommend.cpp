#include "selection/Recommend.h"

#include <algorithm>
#include <cmath>
#include <unordered_map>

#include "base/Numeric.h"
#include "base/RuntimeError.h"
#include "calc/mdlCulcurate.h"
#include "core/PatarnRows.h"
#include "core/Tables.h"
#include "selection/DriverJudge.h"
#include "selection/MotorJudge.h"
#include "selection/MotorTrial.h"
#include "selection/Queries.h"
#include "selection/RecommendRank.h"
#include "selection/mdlDataBase.h"

namespace {

// The rows of the pairs query by the motor they fit.
using DriverRows = std::unordered_map<std::string, std::vector<int>>;

bool Passes(std::string_view verdict, const RecommendOptions& options) {
    return verdict == "OK" || (options.includeFair && verdict == "FAIR");
}

int Tightest(const std::array<double, 5>& ratios) {
    int tightest = -1;
    for (int i = 0; i < static_cast<int>(ratios.size()); ++i)
        if (!std::isnan(ratios[i]) && (tightest < 0 || ratios[i] > ratios[tightest])) tightest = i;
    return tightest;
}

// One walk over the catalogue, with what every motor needs.
struct Walk {
    const RecommendOptions& options;
    RecommendResult& result;
    Recordset drivers;
    DriverRows fits;
    std::vector<DriverTypeRec> types;
    PatarnTable trial{};

    // A row of the lists whose judgement fails is skipped and counted.
    void Guarded(auto&& judge) {
        try {
            judge();
        } catch (const RuntimeError&) {
            ++result.skipped;
        }
    }

    // The driver types as the driver page reads them; when they cannot be
    // read, every driver fails on its type and is counted.
    Walk(const RecommendOptions& o, RecommendResult& r) : options(o), result(r) {
        Guarded([&] { types = DriverTypes_Read(); });
        Recordset_Open(Query_MotorDrivers(), drivers);
        for (int row = 0; !drivers.IsEOF(); ++row, drivers.MoveNext())
            fits[drivers.Field("FitMotor").Text()].push_back(row);
    }

    // The drivers of the motor that pass, each as a pair with the motor.
    void Pair(const Recommendation& motor, double peak, double mean) {
        const auto fit = fits.find(motor.motor);
        // The driver page finds no driver for a model number that holds a quote.
        if (fit == fits.end() || motor.motor.find('\'') != std::string::npos) return;
        for (const int row : fit->second) {
            drivers.MoveFirst();
            drivers.Move(row);
            Guarded([&] {
                const int16_t code = Regeneration_Judge(Regeneration_Limit(drivers.Field("Regeneration1")),
                                                        Regeneration_Limit(drivers.Field("Regeneration2")), peak, mean);
                const std::string_view verdict = Driver_Verdict(types, CInt(drivers.Field("drivertype").Num()), code);
                if (!Passes(verdict, options)) return;
                Recommendation& pair = result.pairs.emplace_back(motor);
                pair.driver = drivers.Field("DriverModel").Text();
                if (verdict != "OK") pair.verdict = verdict;
            });
        }
    }

    // The motor of the current row judged as the motor page judges it.
    void Motor(Recommendation& at, const Recordset& motors, double& JL) {
        const MotorLimits limits = Motor_Limits(motors);
        const MotorLoad load = Motor_Trial(trial, motors, JL);
        const std::string_view verdict = Motor_Verdict(Motor_Judge(load, limits)).text;
        if (!Passes(verdict, options)) return;
        at.motor = motors.Field("MotorModel").Text();
        const FieldValue& capacity = motors.Field("Capacity");
        at.capacity = capacity.Blank() ? std::nullopt : std::optional(capacity.Num());
        at.verdict = verdict;
        at.ratios = Motor_Utilisation(load, limits);
        at.tightest = Tightest(at.ratios);
        Pair(at, Regeneration_Peak(trial), Regeneration_Mean(trial));
    }

    // The motors of a model group, as one press of "Judgement" on it: the
    // trial table refreshed and the load inertia starting at 0.
    void Group(Recommendation at, int16_t seriesID, int16_t modelFlg) {
        Recordset motors;
        if (Recordset_Open(Query_Motors(seriesID, modelFlg), motors) != 0) return;
        Patarn_CopyRows(Patarn, trial);
        double JL = 0;
        for (at.row = kFixedRows; !motors.IsEOF(); ++at.row, motors.MoveNext()) Guarded([&] { Motor(at, motors, JL); });
    }

    void Series(Recommendation at, const Recordset& series) {
        Recordset groups;
        if (Recordset_Open(Query_Models(CInt(series.Field("SeriesFlg").Num())), groups) != 0) return;
        const auto seriesID = CInt(series.Field("ID").Num());
        for (at.modelIndex = 0; !groups.IsEOF(); ++at.modelIndex, groups.MoveNext())
            Guarded([&] {
                at.model = groups.Field("ModelName").Text();
                Group(at, seriesID, CInt(groups.Field("ModelFlg").Num()));
            });
    }

    void Catalogue() {
        Recordset series;
        if (Recordset_Open(Query_Series(), series) != 0) return;
        Recommendation at;
        for (at.seriesIndex = 0; !series.IsEOF(); ++at.seriesIndex, series.MoveNext())
            Guarded([&] {
                at.series = series.Field("SeriesName").Text();
                Series(at, series);
            });
    }
};

}  // namespace

double Recommendation::Ratio() const { return tightest < 0 ? std::nan("") : ratios[tightest]; }

RecommendResult Recommend(const RecommendOptions& options) {
    RecommendResult result;
    if (PatternRowCount == 0) return result;
    Walk(options, result).Catalogue();
    Recommend_Rank(result.pairs, options.top);
    return result;
}
