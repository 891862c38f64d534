#pragma once

class IPythonScriptPlugin;

/** The engine's Python. Never null while the module PythonScriptPlugin is loaded, whether or not Python is available. */
IPythonScriptPlugin* GetPythonScriptPlugin();
