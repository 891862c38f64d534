#pragma once

#include "Misc/OutputDevice.h"

/** Writes log lines to the standard output of the process, in the form of a log file. */
class CORE_API FOutputDeviceStdOutput final : public FOutputDevice
{
public:
	virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) override;
	virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category, double Time) override;
	virtual void Flush() override;

	virtual bool CanBeUsedOnMultipleThreads() const override { return true; }
};
