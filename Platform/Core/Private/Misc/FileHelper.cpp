#include "Misc/FileHelper.h"

#include "GenericPlatform/GenericPlatformFile.h"

namespace
{
constexpr uint8 GUtf8Mark[] = {0xEF, 0xBB, 0xBF};
constexpr uint8 GUtf16LittleEndianMark[] = {0xFF, 0xFE};
constexpr uint8 GUtf16BigEndianMark[] = {0xFE, 0xFF};

template <int32 MarkSize>
bool BeginsWith(const uint8* Buffer, int32 Size, const uint8 (&Mark)[MarkSize])
{
	return Size >= MarkSize && FMemory::Memcmp(Buffer, Mark, MarkSize) == 0;
}

/** @param HighByte  Which of the two bytes of a character is its upper half. */
FString DecodeUtf16(const uint8* Buffer, int32 Size, int32 HighByte)
{
	FString Result;
	Result.Reserve(Size / 2);
	for (int32 Index = 0; Index + 1 < Size; Index += 2)
	{
		Result += static_cast<TCHAR>(Buffer[Index + HighByte] << 8 | Buffer[Index + 1 - HighByte]);
	}
	return Result;
}

void AppendUtf16(TArray<uint8>& Bytes, const FString& Text)
{
	for (const TCHAR Char : Text)
	{
		Bytes.Add(static_cast<uint8>(Char & 0xFF));
		Bytes.Add(static_cast<uint8>(Char >> 8));
	}
}

TArray<uint8> Encode(const FString& Text, FFileHelper::EEncodingOptions Encoding)
{
	using EEncoding = FFileHelper::EEncodingOptions;

	TArray<uint8> Bytes;
	if (Encoding == EEncoding::ForceUnicode || (Encoding == EEncoding::AutoDetect && !FCString::IsPureAnsi(*Text)))
	{
		Bytes.Append(GUtf16LittleEndianMark, sizeof(GUtf16LittleEndianMark));
		AppendUtf16(Bytes, Text);
		return Bytes;
	}

	if (Encoding == EEncoding::ForceUTF8)
	{
		Bytes.Append(GUtf8Mark, sizeof(GUtf8Mark));
	}
	const FTCHARToUTF8 Converted(*Text, Text.Len());
	Bytes.Append(reinterpret_cast<const uint8*>(Converted.Get()), Converted.Length());
	return Bytes;
}
}

bool FFileHelper::LoadFileToArray(TArray<uint8>& Result, const TCHAR* Filename)
{
	return IPlatformFile::GetPlatformPhysical().ReadFile(Result, Filename);
}

bool FFileHelper::LoadFileToString(FString& Result, const TCHAR* Filename)
{
	TArray<uint8> Bytes;
	if (!LoadFileToArray(Bytes, Filename))
	{
		return false;
	}
	BufferToString(Result, Bytes.GetData(), Bytes.Num());
	return true;
}

bool FFileHelper::LoadFileToStringArray(TArray<FString>& Result, const TCHAR* Filename)
{
	FString Text;
	if (!LoadFileToString(Text, Filename))
	{
		return false;
	}

	Text.ParseIntoArrayLines(Result, false);
	if (!Result.IsEmpty() && Result.Last().IsEmpty())
	{
		Result.Pop();
	}
	return true;
}

void FFileHelper::BufferToString(FString& Result, const uint8* Buffer, int32 Size)
{
	if (BeginsWith(Buffer, Size, GUtf16LittleEndianMark))
	{
		Result = DecodeUtf16(Buffer + 2, Size - 2, 1);
		return;
	}
	if (BeginsWith(Buffer, Size, GUtf16BigEndianMark))
	{
		Result = DecodeUtf16(Buffer + 2, Size - 2, 0);
		return;
	}
	const int32 MarkSize = BeginsWith(Buffer, Size, GUtf8Mark) ? static_cast<int32>(sizeof(GUtf8Mark)) : 0;
	Result = FString(Size - MarkSize, reinterpret_cast<const ANSICHAR*>(Buffer) + MarkSize);
}

bool FFileHelper::SaveArrayToFile(TArrayView<const uint8> Array, const TCHAR* Filename)
{
	return IPlatformFile::GetPlatformPhysical().WriteFile(Array.GetData(), Array.Num(), Filename);
}

bool FFileHelper::SaveStringToFile(const FString& String, const TCHAR* Filename, EEncodingOptions EncodingOptions)
{
	return SaveArrayToFile(Encode(String, EncodingOptions), Filename);
}

bool FFileHelper::SaveStringArrayToFile(const TArray<FString>& Lines, const TCHAR* Filename, EEncodingOptions EncodingOptions)
{
	FString Text;
	for (const FString& Line : Lines)
	{
		Text += Line;
		Text += LINE_TERMINATOR;
	}
	return SaveStringToFile(Text, Filename, EncodingOptions);
}
