#pragma once

int runStyledTextTest(int argc, char** argv);
int runTextPagesTest(int argc, char** argv);
int runTablePagesTest(int argc, char** argv);
int runDrawingTest(int argc, char** argv);
