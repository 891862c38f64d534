#pragma once

#include "CoreMinimal.h"
#include "Kismet/BlueprintFunctionLibrary.h"
#include "PythonBPLib.generated.h"

class UVelmoraData;

/** What scripts reach of the plugin itself. */
UCLASS()
class KESTRIX_API UPythonBPLib : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/**
	 * Runs Python in the editor. An error goes to the log (LogPython) and does not come back to the caller; without Python a
	 * warning tells that nothing ran.
	 *
	 * @param PythonCommand  Any number of statements, or the path of a script, ending in ".py", with its arguments.
	 */
	UFUNCTION(BlueprintCallable, Category = "Kestrix|Python")
	static void ExecPythonCommand(const FString& PythonCommand);

	/**
	 * Get the tool data object by the path of the JSON file that was bound when its widget was created.
	 *
	 * @param ToolsJsonPath  Absolute path, or the end of one, in any case, e.g. "VelmoraGallery/VelmoraGallery.json". An end
	 *                       that several tools share finds none of them.
	 * @return None, with a warning, if no tool of that path was ever open.
	 */
	UFUNCTION(BlueprintCallable, Category = "Kestrix|Velmora")
	static UVelmoraData* GetVelmoraData(FString ToolsJsonPath);

	/** All path of current Velmora Tools's JSON file paths. Closed tools count, too. */
	UFUNCTION(BlueprintCallable, Category = "Kestrix|Velmora")
	static TArray<FString> GetAllVelmoraDataPaths();
};
