#pragma once

#include "CoreMinimal.h"
#include "Kismet/BlueprintFunctionLibrary.h"
#include "EditorPythonScriptingLibrary.generated.h"

/** What a script that the editor was started for can say about the editor's life. */
UCLASS(meta = (ScriptName = "EditorPythonScripting"))
class PYTHONSCRIPTPLUGIN_API UEditorPythonScripting : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/**
	 * Keeps the editor open after the script of -ExecutePythonScript has ended, or lets it close.
	 *
	 * @param bNewKeepAlive  True to keep the editor open, for scripts that go on in callbacks.
	 */
	UFUNCTION(BlueprintCallable, Category = "Python|Execution")
	static void SetKeepPythonScriptAlive(bool bNewKeepAlive);

	/**
	 * Tells whether the editor stays open after the script of -ExecutePythonScript.
	 *
	 * @return What SetKeepPythonScriptAlive said last; False at first.
	 */
	UFUNCTION(BlueprintPure, Category = "Python|Execution")
	static bool GetKeepPythonScriptAlive();
};
