-- The optional table of speed-torque curves. A catalogue without it works as
-- before; the engineering checks then say that no curve is known.

CREATE TABLE MotorCurve (
    MotorModel       TEXT,  -- equals MotorTable.MotorModel
    Speed            REAL,  -- r/min
    ContinuousTorque REAL,  -- N m
    PeakTorque       REAL   -- N m
);
