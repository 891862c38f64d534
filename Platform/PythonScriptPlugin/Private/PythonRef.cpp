#include "PythonRef.h"

static FPythonGlobalRef* GFirstGlobalRef = nullptr;

FPythonGlobalRef::FPythonGlobalRef()
	: Next(GFirstGlobalRef)
{
	GFirstGlobalRef = this;
}

void FPythonGlobalRef::ReleaseAll()
{
	for (FPythonGlobalRef* Global = GFirstGlobalRef; Global; Global = Global->Next)
	{
		Global->Ref.Reset();
	}
}
