#pragma once

// Each runs one test class of this folder and returns the number of its failures.
int runReadFileTest(int argc, char** argv);
int runSaveFileTest(int argc, char** argv);
int runSaveConditionsTest(int argc, char** argv);
int runSaveFaultsTest(int argc, char** argv);
int runDocumentLockTest(int argc, char** argv);
int runFileMessageTest(int argc, char** argv);
