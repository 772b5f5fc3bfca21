#pragma once

// Each runs one test class of this folder and returns the number of its failures.
int runArchiveBoundsTest(int argc, char** argv);
int runArchiveDamageTest(int argc, char** argv);
int runArchiveFixtureTest(int argc, char** argv);
int runArchiveMemoryTest(int argc, char** argv);
int runArchiveReaderTest(int argc, char** argv);
int runArchiveSharingTest(int argc, char** argv);
int runArchiveTreeTest(int argc, char** argv);
int runArchiveValuesTest(int argc, char** argv);
int runMomentTest(int argc, char** argv);
int runNumberArrayTest(int argc, char** argv);
