#pragma once

#include "Containers/UnrealString.h"
#include "UObject/NameTypes.h"

/** Long package names ("/Root/Dir/Name") and the files and folders behind them. */
class COREUOBJECT_API FPackageName
{
public:
	/**
	 * Puts a folder behind a root, e.g. "/Game/" and "<Project>/Content/". Both ends in "/". Roots with the longer text go first,
	 * and a later folder of the same root goes before an earlier one.
	 */
	static void RegisterMountPoint(const FString& RootPath, const FString& ContentPath);
	static void UnRegisterMountPoint(const FString& RootPath, const FString& ContentPath);
	static bool MountPointExists(const FString& RootPath);

	/** "/Game/Dir/Name" as "<Project>/Content/Dir/Name" and the extension. False if the root is not mounted. */
	static bool TryConvertLongPackageNameToFilename(
		const FString& InLongPackageName, FString& OutFilename, const FString& InExtension = TEXT(""));
	/** The way back; the extension is dropped. */
	static bool TryConvertFilenameToLongPackageName(
		const FString& InFilename, FString& OutPackageName, FString* OutFailureReason = nullptr);

	/** Whether there is an .uasset or .umap file of that package name. Packages in memory do not count. */
	static bool DoesPackageExist(const FString& LongPackageName, FString* OutFilename = nullptr);

	/** Begins with "/", has a root and a name, no "//", no end in "/" and no character that a package name may not have. */
	static bool IsValidLongPackageName(
		const FString& InLongPackageName, bool bIncludeReadOnlyRoots = false, FText* OutReason = nullptr);
	/** "Name" of "/Root/Dir/Name". */
	static FString GetShortName(const FString& LongName);
	/** "/Root/Dir" of "/Root/Dir/Name". */
	static FString GetLongPackagePath(const FString& InLongPackageName);
	/** "/Root/Dir/Name" of "/Root/Dir/Name.Object:Sub". */
	static FString ObjectPathToPackageName(const FString& InObjectPath);
	/** "Object" of "/Root/Dir/Name.Object". */
	static FString ObjectPathToObjectName(const FString& InObjectPath);

	static const FString& GetAssetPackageExtension();
	static const FString& GetMapPackageExtension();
};
