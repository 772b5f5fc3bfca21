#pragma once

// Each runs one test class of this folder and returns the number of its failures.
int runCnsClockTest(int argc, char** argv);
int runGasUsedTest(int argc, char** argv);
int runProfileDataTest(int argc, char** argv);
int runProfilGeometryTest(int argc, char** argv);
