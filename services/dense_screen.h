#ifndef DENSE_SCREEN_H
#define DENSE_SCREEN_H

/// Lets the program count in logical pixels, whatever the pixels of a screen are: on a dense screen
/// everything keeps its size and is drawn finer. A desktop that asks for a scale between two whole
/// ones, such as 150 %, gets the lower one, with its letters in their full size: in the higher one
/// the table would not fit on the screen. Called once, before the application object is made.
void use_dense_screens();

#endif // DENSE_SCREEN_H
