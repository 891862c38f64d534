#pragma once

#include "PythonRef.h"

/** The `unreal` module. */
namespace PythonModule
{
/** Makes the module with its built-in types and functions and puts it into the console. False with a Python error. */
bool Create();

/** Adds what the loaded modules reflect and the module does not have yet. */
void Update();

PyObject* Get();

/** Takes the module apart, before the interpreter ends. */
void Release();
}
