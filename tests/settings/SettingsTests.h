#pragma once

// Each runs one test class of this folder and returns the number of its failures.
int runColorsTest(int argc, char** argv);
int runInterfaceChoiceTest(int argc, char** argv);
int runPickListEditorTest(int argc, char** argv);
int runPreferencesSavingTest(int argc, char** argv);
int runPreferencesTest(int argc, char** argv);
int runRegisteredDefaultsTest(int argc, char** argv);
int runSettingsCommandTest(int argc, char** argv);
