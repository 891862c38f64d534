#include "HAL/NativePath.h"

#include <cerrno>
#include <unistd.h>

#include "Containers/StringConv.h"
#include "Misc/Paths.h"

std::string ToUtf8(const TCHAR* Text)
{
	const FTCHARToUTF8 Bytes(Text);
	return std::string(Bytes.Get(), static_cast<size_t>(Bytes.Length()));
}

FString FromUtf8(const std::string& Text)
{
	return FString(static_cast<int32>(Text.size()), Text.data());
}

std::string ToNativePath(const TCHAR* Path)
{
	const FString Name(Path);
	return FPaths::IsRelative(Name) ? ToUtf8(*FPaths::ConvertRelativePathToFull(Name))
									: ToUtf8(*Name.Replace(TEXT("\\"), TEXT("/")));
}

bool WriteAll(int Handle, const void* Data, size_t Size)
{
	const char* Rest = static_cast<const char*>(Data);
	while (Size > 0)
	{
		const ssize_t Written = write(Handle, Rest, Size);
		if (Written < 0 && errno != EINTR)
		{
			return false;
		}
		if (Written > 0)
		{
			Rest += Written;
			Size -= static_cast<size_t>(Written);
		}
	}
	return true;
}
