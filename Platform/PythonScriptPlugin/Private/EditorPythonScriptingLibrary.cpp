#include "EditorPythonScriptingLibrary.h"

static bool GKeepPythonScriptAlive = false;

void UEditorPythonScripting::SetKeepPythonScriptAlive(bool bNewKeepAlive)
{
	GKeepPythonScriptAlive = bNewKeepAlive;
}

bool UEditorPythonScripting::GetKeepPythonScriptAlive()
{
	return GKeepPythonScriptAlive;
}
