#include "PythonLog.h"

#include "PythonStrings.h"
#include "PythonTypeSpec.h"

DEFINE_LOG_CATEGORY(LogPython);

static FPythonOutputCapture* GCurrentCapture = nullptr;

FPythonOutputCapture::FPythonOutputCapture(TArray<FPythonLogOutputEntry>& InEntries)
	: Entries(InEntries)
	, Outer(GCurrentCapture)
{
	GCurrentCapture = this;
}

FPythonOutputCapture::~FPythonOutputCapture()
{
	GCurrentCapture = Outer;
}

void FPythonOutputCapture::Add(EPythonLogOutputType Type, const FString& Line)
{
	FPythonLogOutputEntry& Entry = Entries.AddDefaulted_GetRef();
	Entry.Type = Type;
	Entry.Output = Line;
}

FPythonOutputCapture* FPythonOutputCapture::Current()
{
	return GCurrentCapture;
}

static void WriteLine(EPythonLogOutputType Type, const FString& Line)
{
	switch (Type)
	{
		case EPythonLogOutputType::Info:
			UE_LOG(LogPython, Log, TEXT("%s"), *Line);
			break;
		case EPythonLogOutputType::Warning:
			UE_LOG(LogPython, Warning, TEXT("%s"), *Line);
			break;
		case EPythonLogOutputType::Error:
			UE_LOG(LogPython, Error, TEXT("%s"), *Line);
			break;
	}
	if (FPythonOutputCapture* const Capture = FPythonOutputCapture::Current())
	{
		Capture->Add(Type, Line);
	}
}

void PythonLog::Write(EPythonLogOutputType Type, const FString& Text)
{
	int32 Start = 0;
	do
	{
		int32 End = Start;
		while (End < Text.Len() && Text[End] != TEXT('\n'))
		{
			++End;
		}
		const bool bCarriageReturn = End > Start && Text[End - 1] == TEXT('\r');
		WriteLine(Type, Text.Mid(Start, End - Start - (bCarriageReturn ? 1 : 0)));
		Start = End + 1;
	} while (Start < Text.Len());
}

/** A text stream of Python whose lines go to the log. */
struct FPythonLogWriter
{
	EPythonLogOutputType Type;
	/** What came since the last line break. */
	FString Pending;

	static FPythonLogWriter& From(PyObject* Self) { return PythonTypes::StateOf<FPythonLogWriter>(Self); }

	void Write(const FString& Text)
	{
		Pending += Text;
		int32 LastBreak = INDEX_NONE;
		if (Pending.FindLastChar(TEXT('\n'), LastBreak))
		{
			const FString Lines = Pending.Left(LastBreak);
			Pending = Pending.Mid(LastBreak + 1);
			PythonLog::Write(Type, Lines);
		}
	}

	void Flush()
	{
		if (!Pending.IsEmpty())
		{
			const FString Line = MoveTemp(Pending);
			Pending.Reset();
			PythonLog::Write(Type, Line);
		}
	}
};

static PyObject* WriterWrite(PyObject* Self, PyObject* Text)
{
	if (!PyUnicode_Check(Text))
	{
		return PyErr_Format(PyExc_TypeError, "write() argument must be str, not %.200s", Py_TYPE(Text)->tp_name);
	}
	FPythonLogWriter::From(Self).Write(PythonStrings::FromStr(Text));
	return PyLong_FromSsize_t(PyUnicode_GET_LENGTH(Text));
}

static PyObject* WriterWriteLines(PyObject* Self, PyObject* Lines)
{
	const FPythonRef Iterator = FPythonRef::Steal(PyObject_GetIter(Lines));
	if (!Iterator)
	{
		return nullptr;
	}
	while (const FPythonRef Line = FPythonRef::Steal(PyIter_Next(Iterator.Get())))
	{
		if (!FPythonRef::Steal(WriterWrite(Self, Line.Get())))
		{
			return nullptr;
		}
	}
	if (PyErr_Occurred())
	{
		return nullptr;
	}
	Py_RETURN_NONE;
}

static PyObject* WriterFlush(PyObject* Self, PyObject*)
{
	FPythonLogWriter::From(Self).Flush();
	Py_RETURN_NONE;
}

static PyObject* AnswerFalse(PyObject*, PyObject*)
{
	Py_RETURN_FALSE;
}

static PyObject* AnswerTrue(PyObject*, PyObject*)
{
	Py_RETURN_TRUE;
}

static PyObject* GetEncoding(PyObject*, void*)
{
	return PyUnicode_FromString("utf-8");
}

static PyObject* GetErrors(PyObject*, void*)
{
	return PyUnicode_FromString("surrogatepass");
}

static PyMethodDef GWriterMethods[] = {
	{"write", WriterWrite, METH_O, "write($self, text, /)\n--\n\nWrites to the log; a line shows when its line break comes."},
	{"writelines", WriterWriteLines, METH_O, "writelines($self, lines, /)\n--\n\nWrites each text of an iterable."},
	{"flush", WriterFlush, METH_NOARGS, "flush($self, /)\n--\n\nShows an unfinished line."},
	{"isatty", AnswerFalse, METH_NOARGS, "isatty($self, /)\n--\n\nFalse: a log is no terminal."},
	{"readable", AnswerFalse, METH_NOARGS, nullptr},
	{"writable", AnswerTrue, METH_NOARGS, nullptr},
	{"seekable", AnswerFalse, METH_NOARGS, nullptr},
	{nullptr, nullptr, 0, nullptr},
};

static PyGetSetDef GWriterGetters[] = {
	{"encoding", GetEncoding, nullptr, nullptr, nullptr},
	{"errors", GetErrors, nullptr, nullptr, nullptr},
	{"closed", [](PyObject* Self, void*) { return AnswerFalse(Self, nullptr); }, nullptr, nullptr, nullptr},
	{nullptr, nullptr, nullptr, nullptr, nullptr},
};

static FPythonRef MakeWriterType()
{
	return FPythonTypeSpec::Of<FPythonLogWriter>("unreal._Logger", Py_TPFLAGS_DISALLOW_INSTANTIATION)
		.Doc("A text stream whose lines go to the log.")
		.Methods(GWriterMethods)
		.Getters(GWriterGetters)
		.Make();
}

static FPythonGlobalRef GStandardOutput;
static FPythonGlobalRef GStandardError;

bool PythonLog::RedirectStandardStreams()
{
	const FPythonRef WriterType = MakeWriterType();
	if (!WriterType)
	{
		return false;
	}
	GStandardOutput = PythonTypes::New<FPythonLogWriter>(PythonTypes::AsType(WriterType), EPythonLogOutputType::Info);
	GStandardError = PythonTypes::New<FPythonLogWriter>(PythonTypes::AsType(WriterType), EPythonLogOutputType::Error);
	return PySys_SetObject("stdout", GStandardOutput.Get()) == 0 && PySys_SetObject("stderr", GStandardError.Get()) == 0;
}

void PythonLog::FlushStandardStreams()
{
	for (const FPythonGlobalRef* Stream : {&GStandardOutput, &GStandardError})
	{
		if (Stream->Get())
		{
			FPythonLogWriter::From(Stream->Get()).Flush();
		}
	}
}
