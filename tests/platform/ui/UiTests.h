#pragma once

int runFormViewTest(int argc, char** argv);
int runFormViewWalkTest(int argc, char** argv);
int runMomentFieldTest(int argc, char** argv);
int runPlainWindowTest(int argc, char** argv);
