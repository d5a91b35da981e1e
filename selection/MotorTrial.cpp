#include "selection/MotorTrial.h"

#include "calc/mdlCulcurate.h"

MotorLimits Motor_Limits(const Recordset& motor) {
    return {motor.Field("RatedTorque").Num(), motor.Field("MaximumTorque").Num(),
            motor.Field("RotationalSpeed").Num(), motor.Field("Inertia").Num(), motor.Field("MaxInertia").Num()};
}

MotorLoad Motor_Trial(PatarnTable& trial, const Recordset& motor, double& JL) {
    double Jm = motor.Field("BrakeInertia").Num() + motor.Field("Inertia").Num();
    double mass = motor.Field("mass").Num();
    Pattern_Torques(trial, kMotorTrial, Jm, mass);
    MotorLoad load;
    load.T1 = Effective_Torque(trial);
    load.T2 = Max_Torque(trial);
    load.N = Max_Speed(trial);
    const double inertia = Load_Inertia(Element, kMotorTrial, mass);
    if (inertia != -1) JL = inertia;
    load.JL = JL;
    load.T3 = Stopping_Torque(trial);
    return load;
}
