// The process-wide state of the one open document and of the program. Every
// table exists from the first instruction to the last and is overwritten in
// place; nothing here is ever reallocated.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "base/FixedText.h"

// --- the element chain -----------------------------------------------------

struct ElementItem {
    int16_t UnitKind = 0;   // unit category; 9999 marks a row not in use
    int16_t UnitIndex = 0;  // unit shown, inside the category
    FixedText<50> ItemName;
    FixedText<50> ItemText;  // the value as the user sees it
    double Value = 0;        // in the base unit
};

inline constexpr int kItemRows = 14;

struct ElementRecord {
    std::array<ElementItem, kItemRows> Item{};
    int16_t ElementType = 0;
    int16_t InputMode = 0;  // 0 dimensions, 1 direct inertia, 2 direct mass
    double DirectValue = 0;
};

inline constexpr int kElementSlots = 21;  // slot 20 is never filled
inline constexpr int kMaxElements = 20;

inline std::array<ElementRecord, kElementSlots> Element{};
inline int16_t ElementCount = 0;

// --- the uniform calculation record of each element --------------------------

struct ParamRecord {
    double m1 = 0, m2 = 0, m3 = 0;
    double inert0 = 0, inert1 = 0;
    double ratio = 0, eff = 0, exforce = 0, fric = 0;
};

inline std::array<ParamRecord, kElementSlots> Param{};

// --- the operating pattern ---------------------------------------------------

struct PatarnRow {
    double Time = 0;
    double DeltaTime = 0;
    double Speed = 0;
    double LoadSpeed = 0;
    double Position = 0;
    double Torque = 0;
    double Regeneration = 0;
    int16_t RowState = 0;  // bit 0 time side set, bit 1 speed side set
};

inline constexpr int kPatarnRecords = 22;
inline constexpr int kPatarnRows = 20;
using PatarnTable = std::array<PatarnRow, kPatarnRecords>;

inline PatarnTable Patarn{};
inline PatarnTable PatarnTrial{};  // the wizard's copy
inline int16_t PatternRowCount = 0;

// Sentinels of the calculation.
inline constexpr double kOver = -9999;

// --- the sizing values --------------------------------------------------------

enum ResultRecord { Cul = 0, Rate = 1, Ratio = 2, Hantei = 3 };
enum ResultValue {
    EffectiveTorque = 0,
    MaxTorque = 1,
    MaxRotationalSpeed = 2,
    Inertia = 3,
    Regeneration1 = 4,
    Regeneration2 = 5,
    StoppingTorque = 6
};
inline std::array<std::array<double, 7>, 4> ResultValues{};

// --- the report's information block -------------------------------------------

struct PrintInfoRecord {
    int16_t PrintInfoSet = 0;
    FixedText<40> cstCorporation, cstUnit1, cstUnit2, cstName;
    FixedText<40> Corporation, Unit1, Unit2, Name;
    FixedText<20> TelNo, FaxNo;
    FixedText<60> Mail;
    FixedText<80> System;
    FixedText<40> InfoMotorModel, InfoDriverModel, ConData;
    std::array<FixedText<100>, 6> PrintLine{};  // PrintLine(1) to PrintLine(6)
    FixedText<1024> PrintComment;
    std::array<int16_t, 4> PrintOption{};  // PrintOption(1) to PrintOption(4)
    int16_t Reserved = 0;
    FixedText<256> ReservedText;
};

inline PrintInfoRecord PRINTINFO{};
inline FixedText<60> MotorModelText;
inline FixedText<255> MotorComment;
inline FixedText<60> DriverModelText;
inline FixedText<80> DriverComment;

// --- scalars of the program -----------------------------------------------------

inline std::string AppPath;
inline std::string FileName;
inline int16_t CommandFileGiven = 0;
inline int16_t DocumentNamed = 0;
inline int16_t DirtyFlag = 0;
inline int16_t MecaTemplateNo = 0;
inline int16_t MecaResult = 0;  // 0 nothing, 1 template, 2 motor alone, 3 cancelled
inline int16_t MotorSelected = 0;  // 0 none, 1 chosen, 2 candidate being calculated
// The motor flag of the calculation: none chosen, chosen, and the trial of a
// catalogue motor by the selection pages, which stores and changes nothing.
inline constexpr int16_t kMotorNone = 0, kMotorChosen = 1, kMotorTrial = 2;
inline double SelectedJm = 0, SelectedJb = 0, SelectedMotorMass = 0;
inline double CandidateJm = 0, CandidateJb = 0, CandidateMotorMass = 0;
inline int16_t SelectedElement = 0;
inline int16_t FirstVisible = 0;
inline int16_t ItemTab = 0;
inline int16_t DragType = 0;
inline int16_t InsertAnswer = 0;  // 1 insert, 2 overwrite, -1 cancel
inline int16_t LoadMotion = 0;    // 1 the load end rotates, 0 linear
inline double LoadInertiaTotal = 0;
inline double TotalRatio = 0;

// --- fixed tables -----------------------------------------------------------------

inline std::array<int16_t, 52> ElementItemCount{};
inline constexpr int kTemplates = 10;
inline std::array<std::array<int16_t, 11>, kElementSlots> MecaTemplate{};  // (slot, template)
inline std::array<int16_t, 11> MecaTemplateCount{};

// --- the process-wide state that lives beside its own layer ------------------------
//
// Every other global of the headless program, each in the header of the layer
// that owns it; a test resets all of them, and everything above, through one
// helper (State_Reset of the tests' support).
//
//   units/UnitTable.h         UnitTable
//   calc/mdlCulcurate.h       TorqueAcc, TorqueEx, TorqueFric (the parts of the last interval)
//   selection/mdlDataBase.h   SeriesConnection, MotorRecordset, DriverRecordset, SeriesFlgList,
//                             SeriesIDList, ModelFlgList, CurrentSeriesFlg, CurrentSeriesID,
//                             CurrentModelFlg
//   selection/MotorPage.h     MotorRowCount, SelectedMotorModel, MotorCommentList
//   selection/DriverJudge.h   DriverTypes
//   persist/mdlFile.h         UnreadFile
//   reports/CommentBox.h      BoxText, BoxWidth, BoxLines
//   base/MsgBox.cpp           the installed message handler (MsgBox_SetHandler)
