#include "Misc/App.h"

#include "Containers/UnrealString.h"
#include "Misc/CommandLine.h"
#include "Misc/Parse.h"
#include "Misc/Paths.h"

namespace
{
struct FClock
{
	double CurrentTime = 0.0;
	double DeltaTime = 1.0 / 60.0;
	double FixedDeltaTime = 1.0 / 60.0;
	bool bFixed = false;

	static FClock& Get()
	{
		static FClock Clock;
		return Clock;
	}
};
}

const TCHAR* FApp::GetProjectName()
{
	static FString Name;
	Name = HasProjectName() ? FPaths::GetBaseFilename(FPaths::GetProjectFilePath()) : FString(TEXT("None"));
	return *Name;
}

bool FApp::HasProjectName()
{
	return FPaths::IsProjectFilePathSet();
}

bool FApp::IsUnattended()
{
	return FParse::Param(FCommandLine::Get(), TEXT("unattended"));
}

double FApp::GetDeltaTime()
{
	return FClock::Get().DeltaTime;
}

double FApp::GetCurrentTime()
{
	return FClock::Get().CurrentTime;
}

bool FApp::UseFixedTimeStep()
{
	return FClock::Get().bFixed;
}

void FApp::SetUseFixedTimeStep(bool bVal)
{
	FClock::Get().bFixed = bVal;
}

double FApp::GetFixedDeltaTime()
{
	return FClock::Get().FixedDeltaTime;
}

void FApp::SetFixedDeltaTime(double Seconds)
{
	FClock::Get().FixedDeltaTime = Seconds;
}

void FApp::SetCurrentTime(double Seconds)
{
	FClock::Get().CurrentTime = Seconds;
}

void FApp::SetDeltaTime(double Seconds)
{
	FClock::Get().DeltaTime = Seconds;
}
