#include "LogCapture.h"

FLogCapture::FLogCapture(FName InCategory)
	: Category(InCategory)
{
	GLog->FlushThreadedLogs();
	GLog->AddOutputDevice(this);
}

FLogCapture::~FLogCapture()
{
	GLog->RemoveOutputDevice(this);
}

TArray<FString> FLogCapture::Warnings() const
{
	return TextsOf(ELogVerbosity::Warning);
}

TArray<FString> FLogCapture::Errors() const
{
	return TextsOf(ELogVerbosity::Error);
}

TArray<FString> FLogCapture::Lines() const
{
	TArray<FString> Lines;
	for (const FLine& Line : Received)
	{
		Lines.Add(FString::Printf(TEXT("%s: %s: %s"), *Line.Category.ToString(), ToString(Line.Verbosity), *Line.Text));
	}
	return Lines;
}

bool FLogCapture::HasLine(const FString& Line) const
{
	return Lines().ContainsByPredicate(
		[&Line](const FString& Logged) { return Logged.Equals(Line, ESearchCase::CaseSensitive); });
}

void FLogCapture::Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& InCategory)
{
	if (Category.IsNone() || Category == InCategory)
	{
		Received.Add({InCategory, Verbosity, V});
	}
}

TArray<FString> FLogCapture::TextsOf(ELogVerbosity::Type Verbosity) const
{
	TArray<FString> Texts;
	for (const FLine& Line : Received)
	{
		if (Line.Verbosity == Verbosity)
		{
			Texts.Add(Line.Text);
		}
	}
	return Texts;
}
