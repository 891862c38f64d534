#include "Misc/CoreMisc.h"

#include "Containers/Array.h"

static TArray<FSelfRegisteringExec*>& GetExecHandlers()
{
	static TArray<FSelfRegisteringExec*> Handlers;
	return Handlers;
}

FSelfRegisteringExec::FSelfRegisteringExec()
{
	GetExecHandlers().Add(this);
}

FSelfRegisteringExec::~FSelfRegisteringExec()
{
	GetExecHandlers().Remove(this);
}

bool FSelfRegisteringExec::StaticExec(UWorld* InWorld, const TCHAR* Cmd, FOutputDevice& Ar)
{
	// A handler may add or end others.
	const TArray<FSelfRegisteringExec*> Present = GetExecHandlers();
	for (FSelfRegisteringExec* const Handler : Present)
	{
		if (GetExecHandlers().Contains(Handler) && Handler->Exec(InWorld, Cmd, Ar))
		{
			return true;
		}
	}
	return false;
}
