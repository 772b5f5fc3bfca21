#pragma once

// Each runs one test class of this folder and returns the number of its failures.
int runNotificationCenterTest(int argc, char** argv);
int runPickListsTest(int argc, char** argv);
int runPromptTest(int argc, char** argv);
int runUserDefaultsFileTest(int argc, char** argv);
int runUserDefaultsTest(int argc, char** argv);
