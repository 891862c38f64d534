#include "PythonScriptTypes.h"

const TCHAR* LexToString(EPythonLogOutputType Type)
{
	switch (Type)
	{
		case EPythonLogOutputType::Info:
			return TEXT("Info");
		case EPythonLogOutputType::Warning:
			return TEXT("Warning");
		default:
			return TEXT("Error");
	}
}
