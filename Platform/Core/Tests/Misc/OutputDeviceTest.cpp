#include "Misc/OutputDevice.h"

#include <thread>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "HAL/FileManager.h"
#include "LogCapture.h"
#include "Misc/FileHelper.h"
#include "Misc/OutputDeviceFile.h"
#include "Misc/OutputDeviceHelper.h"
#include "TempProject.h"

namespace
{
/** Takes lines on whatever thread they are written. */
class FAnyThreadDevice final : public FOutputDevice
{
public:
	virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) override { Texts.Add(V); }

	virtual bool CanBeUsedOnMultipleThreads() const override { return true; }

	TArray<FString> Texts;
};

/** Says something itself for each line that it hears, once. */
class FEchoDevice final : public FOutputDevice
{
public:
	virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) override
	{
		GLog->RemoveOutputDevice(this);
		UE_LOG(LogTemp, Log, TEXT("echo of %s"), V);
	}
};
}

TEST(FormatLogLine, NamesCategoryAndVerbosityButForLog)
{
	EXPECT_EQ(FOutputDeviceHelper::FormatLogLine(ELogVerbosity::Warning, TEXT("Velmora"), TEXT("text")),
		FString(TEXT("Velmora: Warning: text")));
	EXPECT_EQ(
		FOutputDeviceHelper::FormatLogLine(ELogVerbosity::Log, TEXT("Velmora"), TEXT("text")), FString(TEXT("Velmora: text")));
	EXPECT_EQ(FOutputDeviceHelper::FormatLogLine(ELogVerbosity::Error, NAME_None, TEXT("text")), FString(TEXT("Error: text")));
	EXPECT_EQ(FOutputDeviceHelper::FormatLogLine(ELogVerbosity::Display, TEXT("Velmora")), FString(TEXT("Velmora: Display: ")));
}

TEST(FormatLogLine, BeginsWithTimeAndFrameCounterModuloThousand)
{
	const TGuardValue<uint64> Frame(GFrameCounter, 12007);
	const FString Line = FOutputDeviceHelper::FormatLogLine(ELogVerbosity::Error, TEXT("LogTemp"), TEXT("text"), ELogTimes::UTC);
	EXPECT_TRUE(Line.MatchesWildcard(TEXT("[*.*.*-*.*.*:*][  7]LogTemp: Error: text"))) << testing::PrintToString(Line);
}

TEST(OutputDevice, ReceivesBareTextOncePerCallEvenWithLineBreaks)
{
	const FLogCapture Log;
	UE_LOG(LogTemp, Warning, TEXT("first\nsecond"));
	EXPECT_EQ(Log.Lines(), TArray<FString>({TEXT("LogTemp: Warning: first\nsecond")}));
}

TEST(OutputDevice, FormatsWithoutCategory)
{
	FLogCapture Device;
	Device.Logf(TEXT("%d of %s"), 3, TEXT("four"));
	Device.Logf(ELogVerbosity::Error, TEXT("no %c"), TEXT('x'));
	Device.CategorizedLogf(TEXT("Own"), ELogVerbosity::Display, TEXT("%u"), 7u);
	EXPECT_EQ(
		Device.Lines(), TArray<FString>({TEXT("None: Log: 3 of four"), TEXT("None: Error: no x"), TEXT("Own: Display: 7")}));
}

TEST(OutputDeviceRedirector, LinesOfOtherThreadsReachOrdinaryDevicesLaterOnTheGameThread)
{
	const FLogCapture Ordinary(TEXT("LogTemp"));
	FAnyThreadDevice AnyThread;
	GLog->AddOutputDevice(&AnyThread);

	std::thread([] { UE_LOG(LogTemp, Log, TEXT("from afar")); }).join();

	EXPECT_EQ(AnyThread.Texts, TArray<FString>({TEXT("from afar")}));
	EXPECT_EQ(Ordinary.Lines(), TArray<FString>());
	UE_LOG(LogTemp, Log, TEXT("from here"));
	EXPECT_EQ(Ordinary.Lines(), TArray<FString>({TEXT("LogTemp: Log: from afar"), TEXT("LogTemp: Log: from here")}));
	GLog->RemoveOutputDevice(&AnyThread);
}

TEST(OutputDeviceRedirector, BacklogHoldsLinesFromBeforeTheDeviceUntilItIsSwitchedOff)
{
	UE_LOG(LogTemp, Display, TEXT("line for the backlog"));
	FLogCapture Late(TEXT("LogTemp"));
	GLog->SerializeBacklog(&Late);
	EXPECT_EQ(Late.Lines().Last(), FString(TEXT("LogTemp: Display: line for the backlog")));

	GLog->EnableBacklog(false);
	FLogCapture Later;
	GLog->SerializeBacklog(&Later);
	EXPECT_EQ(Later.Lines(), TArray<FString>());
	GLog->EnableBacklog(true);
}

TEST(OutputDeviceRedirector, DeviceMayLogAndRemoveItselfWhileItIsCalled)
{
	FEchoDevice Echo;
	GLog->AddOutputDevice(&Echo);
	const FLogCapture Log(TEXT("LogTemp"));

	UE_LOG(LogTemp, Log, TEXT("call"));

	EXPECT_EQ(Log.Lines(), TArray<FString>({TEXT("LogTemp: Log: echo of call"), TEXT("LogTemp: Log: call")}));
	EXPECT_FALSE(GLog->IsRedirectingTo(&Echo));
}

TEST(OutputDeviceFile, WritesLinesWithPrefixAtOnceAndAnswersToNobodyAfterTearDown)
{
	const FTempProject Project;
	FOutputDeviceFile File(*Project.Path(TEXT("Saved/Logs/Run.log")));
	File.Log(TEXT("Velmora"), ELogVerbosity::Warning, TEXT("gr\u00FCn"));

	TArray<FString> Lines;
	ASSERT_TRUE(FFileHelper::LoadFileToStringArray(Lines, *File.GetFilename()));
	ASSERT_EQ(Lines.Num(), 2);
	EXPECT_TRUE(Lines[0].StartsWith(TEXT("Log file open, "))) << testing::PrintToString(Lines[0]);
	EXPECT_TRUE(Lines[1].MatchesWildcard(TEXT("[*.*.*-*.*.*:*][*]Velmora: Warning: gr\u00FCn")))
		<< testing::PrintToString(Lines[1]);

	File.TearDown();
	File.Log(TEXT("too late"));
	EXPECT_FALSE(Project.Read(TEXT("Saved/Logs/Run.log")).Contains(TEXT("too late")));
}

TEST(OutputDeviceFile, LogsOfOneNameAreWrittenSideBySide)
{
	const FTempProject Project;
	FOutputDeviceFile First(*Project.Path(TEXT("Run.log")));
	FOutputDeviceFile Second(*Project.Path(TEXT("Run.log")));
	First.Log(TEXT("of the first"));
	Second.Log(TEXT("of the second"));

	EXPECT_EQ(First.GetFilename(), Project.Path(TEXT("Run.log")));
	EXPECT_EQ(Second.GetFilename(), Project.Path(TEXT("Run_2.log")));
	EXPECT_TRUE(Project.Read(TEXT("Run.log")).Contains(TEXT("of the first")));
	EXPECT_TRUE(Project.Read(TEXT("Run_2.log")).Contains(TEXT("of the second")));
}

TEST(OutputDeviceFile, BackupsOfOneSecondAreAllKeptUpToTheLastTen)
{
	const FTempProject Project;
	for (int32 Run = 1; Run <= 12; ++Run)
	{
		FOutputDeviceFile File(*Project.Path(TEXT("Run.log")));
		File.Log(*FString::Printf(TEXT("run %d;"), Run));
	}

	TArray<FString> Backups;
	IFileManager::Get().FindFiles(Backups, *Project.Path(TEXT("Run-backup-*.log")), true, false);
	EXPECT_EQ(Backups.Num(), 10);
	for (const FString& Backup : Backups)
	{
		EXPECT_FALSE(Project.Read(*Backup).Contains(TEXT("run 1;"))) << "the oldest";
	}
	EXPECT_TRUE(Project.Read(TEXT("Run.log")).Contains(TEXT("run 12;")));
}

TEST(OutputDeviceFile, WhatIsNoFileIsWrittenToAndStays)
{
	const FTempProject Project;
	const FString Pipe = Project.Path(TEXT("Run.log"));
	ASSERT_EQ(mkfifo(TCHAR_TO_UTF8(*Pipe), 0600), 0);
	const int Reader = open(TCHAR_TO_UTF8(*Pipe), O_RDONLY | O_NONBLOCK);
	{
		const FOutputDeviceFile File(*Pipe);
		EXPECT_TRUE(File.IsOpened());
		EXPECT_EQ(File.GetFilename(), Pipe);
		EXPECT_EQ(FOutputDeviceFile(*Pipe).GetFilename(), Pipe) << "by two at once";
	}

	char Text[64] = {};
	EXPECT_GT(read(Reader, Text, sizeof(Text) - 1), 0);
	EXPECT_EQ(FString(Text).Left(13), FString(TEXT("Log file open")));
	close(Reader);
	struct stat Status;
	ASSERT_EQ(stat(TCHAR_TO_UTF8(*Pipe), &Status), 0);
	EXPECT_TRUE(S_ISFIFO(Status.st_mode));
}

TEST(OutputDeviceFile, OlderFileIsKeptAsBackup)
{
	const FTempProject Project;
	Project.Write(TEXT("Run.log"), TEXT("of yesterday"));
	const FOutputDeviceFile File(*Project.Path(TEXT("Run.log")));

	TArray<FString> Backups;
	IFileManager::Get().FindFiles(Backups, *Project.Path(TEXT("Run-backup-*.log")), true, false);
	ASSERT_EQ(Backups.Num(), 1);
	EXPECT_EQ(Project.Read(*Backups[0]), FString(TEXT("of yesterday")));
}
