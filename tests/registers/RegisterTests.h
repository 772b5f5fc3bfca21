#pragma once

// Each runs one test class of this folder and returns the number of its failures.
int runAddressBooksTest(int argc, char** argv);
int runDemoRegistersTest(int argc, char** argv);
int runDiversDocumentsTest(int argc, char** argv);
int runGoldenRegisterTest(int argc, char** argv);
int runInvConsoTest(int argc, char** argv);
int runInvMaterielTableTest(int argc, char** argv);
int runInvMaterielTest(int argc, char** argv);
int runMaintCompTest(int argc, char** argv);
int runPreviBudgetTest(int argc, char** argv);
int runRebreatherServTest(int argc, char** argv);
int runRegisterCommandsTest(int argc, char** argv);
int runRegisterEngineTest(int argc, char** argv);
int runRegisterFormRecordTest(int argc, char** argv);
int runRegisterPictureDumpTest(int argc, char** argv);
int runRegisterSlotMutationTest(int argc, char** argv);
int runRegisterSortTest(int argc, char** argv);
int runRepEpavesTableTest(int argc, char** argv);
int runRepEpavesTest(int argc, char** argv);
