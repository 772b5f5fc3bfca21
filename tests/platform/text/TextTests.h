#pragma once

// Each runs one test class of this folder and returns the number of its failures.
int runCatalogueTest(int argc, char** argv);
int runMacRomanTest(int argc, char** argv);
int runMessageTest(int argc, char** argv);
int runNumbersTest(int argc, char** argv);
int runStringsTest(int argc, char** argv);
