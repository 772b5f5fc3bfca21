#pragma once

// Each runs one test class of this folder and returns the number of its failures.
int runDamagedLogbookTest(int argc, char** argv);
int runGoldenLogbookTest(int argc, char** argv);
int runRecordJsonTest(int argc, char** argv);
int runSlotMutationTest(int argc, char** argv);
int runSlotsTest(int argc, char** argv);
int runUnknownObjectsTest(int argc, char** argv);
