#pragma once

#include "Containers/Array.h"

#include <cstdarg>

class FString;

/**
 * The printf of TCHAR text: appends the printed characters, without a closing zero. %s, %ls want TCHAR text, %S, %hs narrow
 * UTF-8 text; "%c" a TCHAR. Numbers print as the C library prints them in the "C" locale. A conversion that does not exist is
 * printed as it is written.
 */
void AppendFormatVarArgs(TArray<TCHAR>& Out, const TCHAR* Format, va_list Arguments);

/** FString::Printf for a list of arguments. */
FString FormatVarArgs(const TCHAR* Format, va_list Arguments);

/** Keeps the decimal point a point, whatever locale a library has set. */
class FScopedCLocale
{
public:
	FScopedCLocale();
	~FScopedCLocale();
	FScopedCLocale(const FScopedCLocale&) = delete;
	FScopedCLocale& operator=(const FScopedCLocale&) = delete;

private:
	void* Previous;
};
