#pragma once

#include "CoreMinimal.h"

class FGarbageSchedule;
class FOutputDeviceFile;
class FOutputDeviceStdOutput;
class FTerminationSignals;
class FTerminalReport;
class SWindow;

/**
 * The editor's life: start, frames, end. One frame is: platform messages, tickers, Slate, garbage. Between frames with
 * nothing to do it sleeps, so that an idle editor uses no CPU. Off-screen there is nobody to wait for: each frame counts as a
 * sixtieth of a second and follows the last at once.
 */
class LAUNCH_API FEngineLoop
{
public:
	FEngineLoop();
	~FEngineLoop();

	/**
	 * Sets the project, the log and the configuration up.
	 *
	 * @param CommandLine The project file, then switches: -abslog=FILE, -stdout, -RenderOffScreen, -unattended,
	 * -ExecutePythonScript="file args", -ExecCmds="a;b", -DisablePython.
	 * Without -stdout, warnings and errors go to the standard error, behind the name of the log file, and what Python prints to the
	 * standard output.
	 *
	 * @return False, with a message on the standard error, when there is no such project.
	 */
	bool PreInit(const TCHAR* CommandLine);

	/** Loads the modules and the plugins and opens the main window. From then on SIGINT, SIGTERM and SIGHUP ask the editor to end. */
	void Init();

	/** False for a start without a display, a script and a command to quit: nobody could use the editor, and nobody would end it. */
	bool HasUser() const;

	/**
	 * One frame. May be called from within a frame by whoever drives the editor; the inner frame is then whole, but for the
	 * collection of garbage: what is on the stack of the outer one may hold pointers.
	 */
	void Tick();

	/** The longest sleep between two looks at the world, in seconds: lines of other threads wait no longer than this. */
	static constexpr double LongestSleep = 10.0;

	/** Sleeps until there is something to do, but no longer than a time in seconds. Off-screen it returns at once. */
	void WaitForWork(double Longest = LongestSleep);

	/** Ends windows, modules with Python, objects and Slate, in this order. */
	void Exit();

	/**
	 * The status for the parent process: 1 when the script of the command line failed or what it gave to sys.exit(), 128 and the
	 * number of the signal when one ended the editor, otherwise what was asked for with FPlatformMisc::RequestExitWithStatus.
	 */
	int32 GetExitStatus() const;

private:
	void OpenLog();
	void HandleSignal();
	void AdvanceClock();
	void OpenMainWindow();
	void RunCommandLineCommands();
	void OnMainWindowWantsToClose(const TSharedRef<SWindow>& Window);

	TUniquePtr<FOutputDeviceFile> LogFile;
	TUniquePtr<FOutputDeviceStdOutput> StdOut;
	TUniquePtr<FTerminalReport> TerminalReport;
	TUniquePtr<FTerminationSignals> Signals;
	TSharedPtr<SWindow> MainWindow;
	uint8 ScriptStatus = 0;
	TUniquePtr<FGarbageSchedule> GarbageSchedule;
	bool bInFrame = false;
	bool bCommandsDone = false;
};

/** The loop of this process. */
extern LAUNCH_API FEngineLoop GEngineLoop;
