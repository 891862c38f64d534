#include "PluginSearch.h"

#include <sys/stat.h>

#include "Containers/Set.h"
#include "Containers/StringConv.h"
#include "GenericPlatform/GenericPlatformFile.h"
#include "Misc/Paths.h"
#include "Templates/Tuple.h"

namespace
{
/** Device and number tell one folder from another, whatever path leads to it. */
using FFolderIdentity = TPair<uint64, uint64>;

class FSearch
{
public:
	void Visit(const FString& Directory)
	{
		struct stat Status;
		bool bKnown = false;
		if (stat(TCHAR_TO_UTF8(*FPaths::ConvertRelativePathToFull(Directory)), &Status) == 0)
		{
			Visited.Add(FFolderIdentity(Status.st_dev, Status.st_ino), &bKnown);
		}
		if (bKnown)
		{
			return;
		}

		TArray<FString> Descriptors;
		TArray<FString> Folders;
		IPlatformFile::GetPlatformPhysical().IterateDirectory(*Directory,
			[&](const TCHAR* Name, bool bIsDirectory)
			{
				if (bIsDirectory)
				{
					Folders.Add(Name);
				}
				else if (FPaths::GetExtension(Name) == TEXT("uplugin"))
				{
					Descriptors.Add(Name);
				}
				return true;
			});

		if (!Descriptors.IsEmpty())
		{
			Descriptors.Sort();
			Found.Append(Descriptors);
			return;
		}
		Folders.Sort();
		for (const FString& Folder : Folders)
		{
			Visit(Folder);
		}
	}

	TArray<FString> Found;

private:
	TSet<FFolderIdentity> Visited;
};
}

TArray<FString> FindPluginDescriptors(const FString& Directory)
{
	FSearch Search;
	Search.Visit(Directory);
	return MoveTemp(Search.Found);
}
