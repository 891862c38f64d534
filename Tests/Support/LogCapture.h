#pragma once

#include "CoreMinimal.h"
#include "Misc/OutputDevice.h"

/** Collects the lines that are logged while it lives. */
class FLogCapture final : public FOutputDevice
{
public:
	/** @param InCategory  The category whose lines count; NAME_None for all. */
	explicit FLogCapture(FName InCategory = NAME_None);
	virtual ~FLogCapture() override;

	/** The texts of the lines of one verbosity, in order. */
	TArray<FString> Warnings() const;
	TArray<FString> Errors() const;

	/** Every line as "Category: Verbosity: text", with the verbosity also for Log. */
	TArray<FString> Lines() const;

	/** Whether that line is among Lines(), letter for letter. */
	bool HasLine(const FString& Line) const;

	virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) override;

private:
	struct FLine
	{
		FName Category;
		ELogVerbosity::Type Verbosity;
		FString Text;
	};

	TArray<FString> TextsOf(ELogVerbosity::Type Verbosity) const;

	const FName Category;
	TArray<FLine> Received;
};
