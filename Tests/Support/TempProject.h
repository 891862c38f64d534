#pragma once

#include "CoreMinimal.h"

/**
 * A new, empty project folder below the system's folder for temporary files. While it lives it is FPaths::ProjectDir(), and GConfig
 * begins anew with it; afterwards the folder is gone and the project before it is back.
 */
class FTempProject
{
public:
	/** @param Name  Name of the project; the folder holds "<Name>.uproject". */
	explicit FTempProject(const TCHAR* Name = TEXT("TestProject"));
	~FTempProject();

	FTempProject(const FTempProject&) = delete;
	FTempProject& operator=(const FTempProject&) = delete;

	/** The folder, without a slash at its end. */
	const FString& GetDir() const { return Dir; }

	/** Full name of a file of the project. */
	FString Path(const TCHAR* RelativeName) const;

	/** Writes a text file of the project (UTF-8), with its folders. @return Its full name. */
	FString Write(const TCHAR* RelativeName, const FString& Text) const;

	/** The text of a file of the project; the test fails if it cannot be read. */
	FString Read(const TCHAR* RelativeName) const;

private:
	FString FormerProject;
	FString Dir;
};
