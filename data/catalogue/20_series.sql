-- Motor series and their model groups. SeriesFlg keys the groups, ID the motors.

INSERT INTO MotorSeriesMaster (SeriesName, SeriesFlg, ID) VALUES ('TVM-A Compact', 10, 1);
INSERT INTO MotorSeriesMaster (SeriesName, SeriesFlg, ID) VALUES ('TVM-B Medium inertia', 20, 2);
INSERT INTO MotorSeriesMaster (SeriesName, SeriesFlg, ID) VALUES ('TVM-C High speed', 30, 3);
INSERT INTO MotorSeriesMaster (SeriesName, SeriesFlg, ID) VALUES ('TVM-D Large low speed', 40, 4);
INSERT INTO MotorSeriesMaster (SeriesName, SeriesFlg, ID) VALUES ('TVM-R Earlier models', 50, 5);

INSERT INTO ModelMaster (SeriesFlg, ModelName, ModelFlg) VALUES (10, 'Low inertia', 1);
INSERT INTO ModelMaster (SeriesFlg, ModelName, ModelFlg) VALUES (10, 'Low inertia, with brake', 2);
INSERT INTO ModelMaster (SeriesFlg, ModelName, ModelFlg) VALUES (10, 'Low inertia, IP67 cable', 3);
INSERT INTO ModelMaster (SeriesFlg, ModelName, ModelFlg) VALUES (20, 'Medium inertia', 1);
INSERT INTO ModelMaster (SeriesFlg, ModelName, ModelFlg) VALUES (20, 'Medium inertia, with brake', 2);
INSERT INTO ModelMaster (SeriesFlg, ModelName, ModelFlg) VALUES (30, 'High speed', 1);
INSERT INTO ModelMaster (SeriesFlg, ModelName, ModelFlg) VALUES (30, 'High speed, with brake', 2);
INSERT INTO ModelMaster (SeriesFlg, ModelName, ModelFlg) VALUES (40, 'Medium inertia', 1);
INSERT INTO ModelMaster (SeriesFlg, ModelName, ModelFlg) VALUES (40, 'High inertia', 2);
INSERT INTO ModelMaster (SeriesFlg, ModelName, ModelFlg) VALUES (40, 'High inertia, with brake', 3);
INSERT INTO ModelMaster (SeriesFlg, ModelName, ModelFlg) VALUES (50, 'Discontinued', 1);
INSERT INTO ModelMaster (SeriesFlg, ModelName, ModelFlg) VALUES (50, 'Special order', 2);
