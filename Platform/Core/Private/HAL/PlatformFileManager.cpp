#include "HAL/PlatformFileManager.h"

#include "GenericPlatform/GenericPlatformFile.h"

FPlatformFileManager& FPlatformFileManager::Get()
{
	static FPlatformFileManager Manager;
	return Manager;
}

IPlatformFile& FPlatformFileManager::GetPlatformFile()
{
	return IPlatformFile::GetPlatformPhysical();
}
