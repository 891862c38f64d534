#pragma once

#include <string>

#include "Containers/UnrealString.h"

/** Text as the system takes it. */
std::string ToUtf8(const TCHAR* Text);

/** Text from the system; what is no UTF-8 becomes "?". */
FString FromUtf8(const std::string& Text);

/** A path as the system takes it; a relative one is taken against FPlatformProcess::BaseDir(). */
std::string ToNativePath(const TCHAR* Path);

/** Writes all bytes to an open file, whatever interrupts. False on failure. */
bool WriteAll(int Handle, const void* Data, size_t Size);
