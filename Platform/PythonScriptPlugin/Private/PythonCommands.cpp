#include "PythonCommands.h"

#include "Misc/FileHelper.h"
#include "Misc/Paths.h"
#include "PythonCodeCache.h"
#include "PythonCommandLine.h"
#include "PythonErrors.h"
#include "PythonInterpreter.h"
#include "PythonLog.h"
#include "PythonStrings.h"

static FPythonCodeCache GCodeCache;

static int StartSymbolOf(EPythonCommandExecutionMode Mode)
{
	switch (Mode)
	{
		case EPythonCommandExecutionMode::ExecuteStatement:
			return Py_single_input;
		case EPythonCommandExecutionMode::EvaluateStatement:
			return Py_eval_input;
		default:
			return Py_file_input;
	}
}

/** A SystemExit ends the script, never the editor. Returns its status; a text is one of 1, as for Python itself. */
static int32 FinishExit(const FPythonError& Exit)
{
	const FPythonRef Status = FPythonRef::Steal(PyObject_GetAttrString(Exit.Get(), "code"));
	if (!Status || Status.Get() == Py_None)
	{
		PyErr_Clear();
		return 0;
	}
	if (!PyLong_Check(Status.Get()))
	{
		PythonLog::Write(EPythonLogOutputType::Error, PythonStrings::Describe(Status.Get()));
		return 1;
	}
	int Overflow = 0;
	const long Number = PyLong_AsLongAndOverflow(Status.Get(), &Overflow);
	if (Number != 0)
	{
		PythonLog::Write(
			EPythonLogOutputType::Error, TEXT("The script ended with exit status ") + PythonStrings::Describe(Status.Get()));
	}
	return Overflow ? -1 : static_cast<int32>(Number);
}

/** Ends a failed run: logs the error. Returns the status, 0 if it was an orderly exit after all. */
static int32 FinishError(FString* OutTraceback)
{
	if (PyErr_ExceptionMatches(PyExc_SystemExit))
	{
		PythonLog::FlushStandardStreams();
		return FinishExit(FPythonError::Take());
	}
	const FString Traceback = PythonErrors::Report();
	if (OutTraceback)
	{
		*OutTraceback = Traceback;
	}
	return 1;
}

/** Compiles bytes or text under a file name, which tracebacks show. */
static FPythonRef Compile(const ANSICHAR* Source, PyObject* FileName, int StartSymbol, int CompilerFlags)
{
	PyCompilerFlags Flags = {};
	Flags.cf_flags = CompilerFlags;
	Flags.cf_feature_version = PY_MINOR_VERSION;
	return FPythonRef::Steal(Py_CompileStringObject(Source, FileName, StartSymbol, &Flags, -1));
}

/** A function over the console's variables that runs the text; it gives an expression's value with Py_eval_input. */
static FPythonRef MakeFunction(const TCHAR* Text, int32 Length, int StartSymbol)
{
	const FPythonRef Source = PythonStrings::ToPython(Text, Length);
	const ANSICHAR* const Utf8 = Source ? PyUnicode_AsUTF8(Source.Get()) : nullptr;
	if (!Utf8)
	{
		return FPythonRef();
	}
	const FPythonRef Name = FPythonInterpreter::CallBootstrap("LiteralName", Source.Get());
	if (!Name)
	{
		return FPythonRef();
	}
	const FPythonRef Code = Compile(Utf8, Name.Get(), StartSymbol, PyCF_SOURCE_IS_UTF8 | PyCF_IGNORE_COOKIE);
	// The code was not compiled as a function's body, so the call uses the globals as locals too, as a module does.
	return Code ? FPythonRef::Steal(PyFunction_New(Code.Get(), FPythonInterpreter::ConsoleGlobals())) : FPythonRef();
}

/** Full name of a script: in the working folder, otherwise on sys.path. Empty, with an error set, if it is nowhere. */
static FString FindScript(const FString& FileName)
{
	const FPythonRef Name = PythonStrings::ToPython(FileName);
	const FPythonRef FullName = Name ? FPythonInterpreter::CallBootstrap("find_script", Name.Get()) : FPythonRef();
	if (FullName.Get() == Py_None)
	{
		PythonErrors::Raise(PyExc_FileNotFoundError,
			FString::Printf(TEXT("Python file '%s' is neither in the working folder nor on sys.path"), *FileName));
		return FString();
	}
	return FullName ? PythonStrings::FromStr(FullName.Get()) : FString();
}

/** sys.argv of a script for the time of its run. */
class FScopedSysArguments
{
public:
	FScopedSysArguments(const FString& FileName, const TArray<FString>& Arguments)
		: Previous(FPythonRef::Borrow(PySys_GetObject("argv")))
	{
		const FPythonRef List = FPythonRef::Steal(PyList_New(0));
		PyList_Append(List.Get(), PythonStrings::ToPython(FileName).Get());
		for (const FString& Argument : Arguments)
		{
			PyList_Append(List.Get(), PythonStrings::ToPython(Argument).Get());
		}
		PySys_SetObject("argv", List.Get());
	}

	~FScopedSysArguments() { PySys_SetObject("argv", Previous.Get()); }

private:
	const FPythonRef Previous;
};

/** Lets a script import its neighbours: its folder is the first search path for the time of the run. */
class FScopedScriptFolder
{
public:
	explicit FScopedScriptFolder(const FString& Folder)
		: SearchPath(FPythonRef::Borrow(PySys_GetObject("path")))
		, Entry(PythonStrings::ToPython(Folder))
	{
		PyList_Insert(SearchPath.Get(), 0, Entry.Get());
	}

	~FScopedScriptFolder()
	{
		// The script may have changed the list, so what was put in is looked for, not just cut off.
		for (Py_ssize_t Index = 0; Index < PyList_GET_SIZE(SearchPath.Get()); ++Index)
		{
			if (PyList_GET_ITEM(SearchPath.Get(), Index) == Entry.Get())
			{
				PyList_SetSlice(SearchPath.Get(), Index, Index + 1, nullptr);
				return;
			}
		}
	}

private:
	const FPythonRef SearchPath;
	const FPythonRef Entry;
};

/** The variables that a file runs in: a copy of what a fresh console has, or the console's own. */
static FPythonRef MakeFileGlobals(EPythonFileExecutionScope Scope)
{
	if (Scope == EPythonFileExecutionScope::Public)
	{
		return FPythonRef::Borrow(FPythonInterpreter::ConsoleGlobals());
	}
	FPythonRef Globals = FPythonRef::Steal(PyDict_New());
	if (Globals)
	{
		PyDict_SetItemString(Globals.Get(), "__name__", FPythonRef::Steal(PyUnicode_FromString("__main__")).Get());
		PyDict_SetItemString(Globals.Get(), "__builtins__", FPythonRef::Steal(PyImport_ImportModule("builtins")).Get());
	}
	return Globals;
}

/** Reads a file as bytes: its own coding mark says how it is encoded. Null-terminated. */
static bool LoadSource(const FString& FullName, TArray<uint8>& OutSource)
{
	if (!FFileHelper::LoadFileToArray(OutSource, *FullName))
	{
		PythonErrors::Raise(PyExc_OSError, FString::Printf(TEXT("could not read Python file '%s'"), *FullName));
		return false;
	}
	if (OutSource.Contains(0))
	{
		PythonErrors::Raise(PyExc_ValueError, FString::Printf(TEXT("Python file '%s' contains null bytes"), *FullName));
		return false;
	}
	OutSource.Add(0);
	return true;
}

static FPythonRef RunFile(const FPythonCommandLine& CommandLine, EPythonFileExecutionScope Scope)
{
	const FString FullName = FindScript(CommandLine.FileName);
	TArray<uint8> Source;
	if (FullName.IsEmpty() || !LoadSource(FullName, Source))
	{
		return FPythonRef();
	}
	const FPythonRef Name = PythonStrings::ToPython(FullName);
	const FPythonRef Code = Compile(reinterpret_cast<const ANSICHAR*>(Source.GetData()), Name.Get(), Py_file_input, 0);
	const FPythonRef Globals = Code ? MakeFileGlobals(Scope) : FPythonRef();
	if (!Globals)
	{
		return FPythonRef();
	}

	const FScopedSysArguments ScopedArguments(FullName, CommandLine.Arguments);
	const FScopedScriptFolder ScopedFolder(FPaths::GetPath(FullName));
	PyDict_SetItemString(Globals.Get(), "__file__", Name.Get());
	FPythonRef Result = FPythonRef::Steal(PyEval_EvalCode(Code.Get(), Globals.Get(), Globals.Get()));
	if (Scope == EPythonFileExecutionScope::Public && PyDict_GetItemString(Globals.Get(), "__file__"))
	{
		PyDict_DelItemString(Globals.Get(), "__file__");
	}
	return Result;
}

/** Calls a compiled text. The command may push itself out of the cache by the commands that it runs, so it is held. */
static FPythonRef Call(FPythonRef Function)
{
	return FPythonRef::Steal(PyObject_CallNoArgs(Function.Get()));
}

/** The value of a command, null with a Python error on failure. */
static FPythonRef Execute(const TCHAR* Text, int32 Length, EPythonCommandExecutionMode Mode, EPythonFileExecutionScope Scope)
{
	const int StartSymbol = StartSymbolOf(Mode);
	if (PyObject* const Known = GCodeCache.Find(Text, Length, StartSymbol))
	{
		return Call(FPythonRef::Borrow(Known));
	}

	FPythonCommandLine CommandLine;
	if (Mode == EPythonCommandExecutionMode::ExecuteFile && FPythonCommandLine::Parse(FString(Length, Text), CommandLine))
	{
		return RunFile(CommandLine, Scope);
	}

	const FPythonRef Function = MakeFunction(Text, Length, StartSymbol);
	if (!Function)
	{
		return FPythonRef();
	}
	GCodeCache.Add(Text, Length, StartSymbol, Function);
	return Call(Function);
}

int32 PythonCommands::Run(const TCHAR* Command)
{
	const FPythonRef Result =
		Execute(Command, FCString::Strlen(Command), EPythonCommandExecutionMode::ExecuteFile, EPythonFileExecutionScope::Private);
	if (!Result)
	{
		return FinishError(nullptr);
	}
	PythonLog::FlushStandardStreams();
	return 0;
}

bool PythonCommands::Run(FPythonCommandEx& Command)
{
	Command.LogOutput.Reset();
	Command.CommandResult.Reset();
	const FPythonOutputCapture Capture(Command.LogOutput);

	const FPythonRef Result = Execute(*Command.Command, Command.Command.Len(), Command.ExecutionMode, Command.FileExecutionScope);
	const FPythonRef Text = Result ? FPythonRef::Steal(PyObject_Repr(Result.Get())) : FPythonRef();
	if (!Text)
	{
		return FinishError(&Command.CommandResult) == 0;
	}
	PythonLog::FlushStandardStreams();
	Command.CommandResult = PythonStrings::FromStr(Text.Get());
	return true;
}

void PythonCommands::EmptyCache()
{
	GCodeCache.Empty();
}
