#pragma once

#include "PythonRef.h"
#include "PythonScriptTypes.h"

DECLARE_LOG_CATEGORY_EXTERN(LogPython, Log, All);

/** What scripts write: every line goes to LogPython, and to whoever collects the output of the running command. */
namespace PythonLog
{
/** Logs a text line by line; a line break at its end adds no empty line. */
void Write(EPythonLogOutputType Type, const FString& Text);

/** Puts writers in the place of sys.stdout and sys.stderr. */
bool RedirectStandardStreams();

/** Writes what was printed without a line break at its end. */
void FlushStandardStreams();
}

/** Collects all lines that are written during its life; of nested ones only the innermost. */
class FPythonOutputCapture
{
public:
	explicit FPythonOutputCapture(TArray<FPythonLogOutputEntry>& InEntries);
	~FPythonOutputCapture();
	FPythonOutputCapture(const FPythonOutputCapture&) = delete;
	FPythonOutputCapture& operator=(const FPythonOutputCapture&) = delete;

	void Add(EPythonLogOutputType Type, const FString& Line);

	/** The innermost one, or null. */
	static FPythonOutputCapture* Current();

private:
	TArray<FPythonLogOutputEntry>& Entries;
	FPythonOutputCapture* const Outer;
};
