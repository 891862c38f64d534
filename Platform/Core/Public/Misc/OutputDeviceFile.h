#pragma once

#include "Containers/UnrealString.h"
#include "Misc/OutputDevice.h"

/**
 * A log file, UTF-8, each line in the form of FOutputDeviceHelper::FormatLogLine with the time in UTC. A line is handed to the
 * system as soon as it arrives, so that none is lost when the process ends by a failure.
 */
class CORE_API FOutputDeviceFile final : public FOutputDevice
{
public:
	/**
	 * Opens the file with the first line. Missing folders are made; an older file of that name is renamed to
	 * "<Name>-backup-YYYY.MM.DD-HH.MM.SS.<ext>" after the time of its last change, and the last ten of these are kept. While another
	 * process writes a log of that name, the file is "<Name>_2.<ext>" and so on.
	 */
	explicit FOutputDeviceFile(const TCHAR* InFilename);
	virtual ~FOutputDeviceFile() override;

	/** The name of the file that is written, which may have a number. */
	const FString& GetFilename() const { return Filename; }

	/** Whether the file could be opened; lines are lost otherwise. */
	bool IsOpened() const { return Handle != -1; }

	virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) override;
	virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category, double Time) override;
	virtual void TearDown() override;

	virtual bool CanBeUsedOnMultipleThreads() const override { return true; }

private:
	void WriteLine(const FString& Line);

	FString Filename;
	int Handle = -1;
};
