#pragma once

// Each runs one test class of this folder and returns the number of its failures.
int runNitroxTest(int argc, char** argv);
int runTrimixTest(int argc, char** argv);
int runRebreatherTest(int argc, char** argv);
int runUnitsTest(int argc, char** argv);
int runDatumTest(int argc, char** argv);
int runGpsTest(int argc, char** argv);
int runCalculatorWindowsTest(int argc, char** argv);
int runCalculatorTextsTest(int argc, char** argv);
int runCalcCommandTest(int argc, char** argv);
