#pragma once

int runFormViewTest(int argc, char** argv);
int runFormViewWalkTest(int argc, char** argv);
int runMomentFieldTest(int argc, char** argv);
int runPdfPageChooserTest(int argc, char** argv);
int runDocumentWindowTest(int argc, char** argv);
int runSourceTableTest(int argc, char** argv);
