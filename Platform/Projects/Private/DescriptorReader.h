#pragma once

#include "CoreMinimal.h"
#include "Dom/JsonObject.h"
#include "Templates/Function.h"

/**
 * Reads the fields of a descriptor. A missing field leaves the output as it was; a field of another type makes the reader fail, with
 * the first such place as the reason, and it goes on.
 */
class FDescriptorReader
{
public:
	/** @param InPlace  Where the object stands, "Modules[0]"; empty for the root. */
	FDescriptorReader(const FJsonObject& InObject, const FString& InPlace, FText& InFailReason);

	bool HasFailed() const { return bFailed; }

	void Read(const TCHAR* Key, FString& OutValue);
	void Read(const TCHAR* Key, bool& OutValue);

	/** A text that must be there and must not be empty. */
	void ReadRequired(const TCHAR* Key, FString& OutValue);

	/** Calls the visitor with a reader for each object of an array. */
	void ReadObjects(const TCHAR* Key, TFunctionRef<void(FDescriptorReader&)> Visitor);

	/** Makes the reader fail at a field: "Modules[0].Type: expected ..., found ...". */
	void Fail(const TCHAR* Key, const FString& Expected, const FString& Found);

	/** Reads the root object of a file and hands it to the visitor. @return False, with the reason, if that or the visitor fails. */
	static bool LoadFile(const FString& FileName, FText& OutFailReason, TFunctionRef<bool(const FJsonObject&)> Visitor);

private:
	/** The value if it is there and of that type. */
	TSharedPtr<FJsonValue> Find(const TCHAR* Key, EJson Type, const TCHAR* NameOfType);

	const FJsonObject& Object;
	const FString Place;
	FText& FailReason;
	bool bFailed = false;
};
