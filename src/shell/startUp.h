// The course of the program from its start to its end.
#pragma once

#include <functional>

class MainWindow;

// Runs the program; returns the event loop's result. whenShown, if given, is called once the main
// window is shown and the start-up picture is gone.
int runProgram(int &argc, char **argv, const std::function<void(MainWindow &)> &whenShown = {});
