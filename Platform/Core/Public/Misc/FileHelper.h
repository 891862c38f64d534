#pragma once

#include "Containers/Array.h"
#include "Containers/ArrayView.h"
#include "Containers/UnrealString.h"

/** Whole files at once. A file is written to a temporary neighbour first and then renamed, and missing folders are made. */
struct CORE_API FFileHelper
{
	enum class EEncodingOptions
	{
		/** Bytes for plain ASCII text, UTF-16 with a byte order mark for anything else. */
		AutoDetect,

		/** UTF-16, little endian, with a byte order mark. */
		ForceUnicode,

		/** UTF-8 with a byte order mark. */
		ForceUTF8,
		ForceUTF8WithoutBOM,
	};

	/** @return False, with Result left as it was, if the file cannot be read. */
	static bool LoadFileToArray(TArray<uint8>& Result, const TCHAR* Filename);

	/** Reads text, UTF-16 or UTF-8 by its byte order mark, otherwise UTF-8; what is no UTF-8 becomes "?". */
	static bool LoadFileToString(FString& Result, const TCHAR* Filename);

	/** Reads text as above and splits it at LF, CRLF or CR. A break at the end adds no empty line. */
	static bool LoadFileToStringArray(TArray<FString>& Result, const TCHAR* Filename);

	/** Decodes text by its byte order mark as LoadFileToString does. */
	static void BufferToString(FString& Result, const uint8* Buffer, int32 Size);

	static bool SaveArrayToFile(TArrayView<const uint8> Array, const TCHAR* Filename);
	static bool SaveStringToFile(
		const FString& String, const TCHAR* Filename, EEncodingOptions EncodingOptions = EEncodingOptions::AutoDetect);

	/** Writes each line with a line break behind it. */
	static bool SaveStringArrayToFile(
		const TArray<FString>& Lines, const TCHAR* Filename, EEncodingOptions EncodingOptions = EEncodingOptions::AutoDetect);
};
