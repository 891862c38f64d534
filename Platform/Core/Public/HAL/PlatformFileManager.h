#pragma once

class IPlatformFile;

/** Hands out the file system. */
class CORE_API FPlatformFileManager
{
public:
	static FPlatformFileManager& Get();

	IPlatformFile& GetPlatformFile();
};
