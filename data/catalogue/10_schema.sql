-- The catalogue of servomotors and drivers: six tables, read-only at run time.

CREATE TABLE MotorSeriesMaster (
    SeriesName TEXT,
    SeriesFlg  INTEGER,
    ID         INTEGER
);

CREATE TABLE ModelMaster (
    SeriesFlg INTEGER,
    ModelName TEXT,
    ModelFlg  INTEGER
);

CREATE TABLE MotorTable (
    SeriesID        INTEGER,
    ModelFlg        INTEGER,
    MotorModel      TEXT,
    Capacity        REAL,  -- W
    RotationalSpeed REAL,  -- r/min
    Inertia         REAL,  -- kg m^2
    RatedTorque     REAL,  -- N m
    MaximumTorque   REAL,  -- N m
    MaxInertia      REAL,  -- allowable ratio of load to rotor inertia
    mass            REAL,  -- kg
    BrakeInertia    REAL,  -- kg m^2
    Comment         TEXT
);

CREATE TABLE DriverTable (
    DriverModel        TEXT,
    Regeneration1      REAL,  -- J
    Regeneration2      REAL,  -- W
    drivertype         INTEGER,
    CommandSystem      TEXT,
    PowerSupplyVoltage TEXT,  -- V
    PowerSupplyType    TEXT
);

CREATE TABLE MotorDriverTable (
    MotorModel  TEXT,
    DriverModel TEXT
);

CREATE TABLE DriverTypeMaster (
    DriverType INTEGER,
    OKComment  TEXT,
    NGComment  TEXT,
    OKJudgeFlg INTEGER,
    NGJudgeFlg INTEGER
);
