#pragma once

// Each runs one test class of this folder and returns the number of its failures.
int runCalculatorLooksTest(int argc, char** argv);
int runCalculatorWindowTest(int argc, char** argv);
int runCalculatorMenuTest(int argc, char** argv);
