#pragma once

#include "PythonRef.h"

/** Python functions that run before or after each frame of Slate, and other Python threads, which get their turn there. */
namespace PythonSlateTicks
{
/** Adds register_slate_pre_tick_callback and the like to the module. */
bool Register(PyObject* Module);

/** Begins to follow the frames of the Slate application. */
void Start();

/** Says that a script ran, which may have changed what is to be seen. */
void RequestFrame();

/** Lets go of all callbacks and of the application, before the interpreter ends. */
void ReleaseAll();
}
