#pragma once

#include "CoreMinimal.h"

class IPythonScriptPlugin;
class SWidget;

/** The editor of this process, off-screen. */
namespace BenchmarkedEditor
{
IPythonScriptPlugin& GetPython();

/** Runs a command; a failing one ends the program, as nothing measured after it would mean anything. */
void Run(const FString& Command);

/** The description with that many leaf widgets, which stands in the project's folder Forms. */
FString GetForm(int64 NumLeaves);

/** Opens a description and paints its first frame. */
void OpenForm(const FString& Path);

/** Closes it. */
void CloseForm(const FString& Path);

/** The first shown widget of a type in a form that is open. */
TSharedRef<SWidget> FindInForm(const FString& Path, const TCHAR* Type);

/** Makes the main window wait for its next frame, in which it paints all that it shows. */
void DamageMainWindow();

/** One turn of the main loop. */
void PassFrame();
}
