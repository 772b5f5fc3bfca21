#pragma once

/// The command line's test classes, one function per file.
int runBlankDiveTest(int argc, char** argv);
int runDumpTest(int argc, char** argv);
int runEditTest(int argc, char** argv);
int runFormTest(int argc, char** argv);
int runGlobalOptionsTest(int argc, char** argv);
int runHelpTest(int argc, char** argv);
int runInfoTest(int argc, char** argv);
int runLoadTest(int argc, char** argv);
int runLockTest(int argc, char** argv);
int runNewTest(int argc, char** argv);
int runOfferTest(int argc, char** argv);
int runPictureTest(int argc, char** argv);
int runProfileDataTest(int argc, char** argv);
int runPromptTest(int argc, char** argv);
int runRefusedFileTest(int argc, char** argv);
int runRowsTest(int argc, char** argv);
int runSearchTest(int argc, char** argv);
int runTableCommandTest(int argc, char** argv);
int runUsageTest(int argc, char** argv);
