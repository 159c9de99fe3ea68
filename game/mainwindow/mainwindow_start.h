#ifndef MAINWINDOW_START_H
#define MAINWINDOW_START_H

/// Shows the picture of the start and then the window of the program, and runs until the user ends
/// it. Needs the application; returns the status with which the program ends.
int run_mainwindow();

#endif // MAINWINDOW_START_H
