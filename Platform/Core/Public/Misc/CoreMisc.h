#pragma once

#include "CoreTypes.h"

class FOutputDevice;
class UWorld;

/** A handler of console input that is no variable and no command of the console. It is asked for as long as it lives. */
class CORE_API FSelfRegisteringExec
{
public:
	FSelfRegisteringExec();
	virtual ~FSelfRegisteringExec();

	FSelfRegisteringExec(const FSelfRegisteringExec&) = delete;
	FSelfRegisteringExec& operator=(const FSelfRegisteringExec&) = delete;

	/** @return Whether the input was meant for this handler. */
	virtual bool Exec(UWorld* InWorld, const TCHAR* Cmd, FOutputDevice& Ar) = 0;

	/** Asks all handlers, the earliest first, until one takes the input. */
	static bool StaticExec(UWorld* InWorld, const TCHAR* Cmd, FOutputDevice& Ar);
};
