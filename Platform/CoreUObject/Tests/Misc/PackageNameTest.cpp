#include <gtest/gtest.h>

#include "Misc/PackageName.h"
#include "TempProject.h"

namespace
{
/** "/PkgTest/" behind the content folder of a project of its own. */
class PackageName : public testing::Test
{
protected:
	void SetUp() override { FPackageName::RegisterMountPoint(TEXT("/PkgTest/"), Project.Path(TEXT("Content/"))); }
	void TearDown() override { FPackageName::UnRegisterMountPoint(TEXT("/PkgTest/"), Project.Path(TEXT("Content/"))); }

	const FTempProject Project;
};
}

TEST_F(PackageName, ExistsIfItsFileIsOnDisk)
{
	const FString Asset = Project.Write(TEXT("Content/Dir/Thing.uasset"), TEXT("asset"));
	Project.Write(TEXT("Content/Level.umap"), TEXT("map"));
	FString Filename;

	EXPECT_TRUE(FPackageName::DoesPackageExist(TEXT("/PkgTest/Dir/Thing"), &Filename));
	EXPECT_EQ(Filename, Asset);
	EXPECT_TRUE(FPackageName::DoesPackageExist(TEXT("/PkgTest/Level")));
	EXPECT_FALSE(FPackageName::DoesPackageExist(TEXT("/PkgTest/Dir/Nothing")));
}

TEST_F(PackageName, ObjectNamesAndUnmountedRootsDoNotExist)
{
	Project.Write(TEXT("Content/Thing.uasset"), TEXT("asset"));

	EXPECT_FALSE(FPackageName::DoesPackageExist(TEXT("/PkgTest/Thing.Thing")));
	EXPECT_FALSE(FPackageName::DoesPackageExist(TEXT("/Unmounted/Thing")));
	EXPECT_FALSE(FPackageName::DoesPackageExist(TEXT("Thing")));
	EXPECT_FALSE(FPackageName::DoesPackageExist(TEXT("")));
	EXPECT_FALSE(FPackageName::DoesPackageExist(TEXT("/PkgTest/")));
	EXPECT_FALSE(FPackageName::DoesPackageExist(TEXT("/PkgTestElse/Thing")));
}

TEST_F(PackageName, ConvertsBothWays)
{
	FString Filename;
	FString Package;

	EXPECT_TRUE(FPackageName::TryConvertLongPackageNameToFilename(TEXT("/PkgTest/Dir/Thing"), Filename, TEXT(".uasset")));
	EXPECT_EQ(Filename, Project.Path(TEXT("Content/Dir/Thing.uasset")));
	EXPECT_TRUE(FPackageName::TryConvertFilenameToLongPackageName(Filename, Package));
	EXPECT_EQ(Package, TEXT("/PkgTest/Dir/Thing"));
	EXPECT_FALSE(FPackageName::TryConvertFilenameToLongPackageName(TEXT("/nowhere/Thing.uasset"), Package));
}

TEST_F(PackageName, LongerRootsGoFirst)
{
	FPackageName::RegisterMountPoint(TEXT("/PkgTest/Inner/"), Project.Path(TEXT("Elsewhere/")));
	FString Filename;

	EXPECT_TRUE(FPackageName::TryConvertLongPackageNameToFilename(TEXT("/PkgTest/Inner/Thing"), Filename));
	EXPECT_EQ(Filename, Project.Path(TEXT("Elsewhere/Thing")));
	FPackageName::UnRegisterMountPoint(TEXT("/PkgTest/Inner/"), Project.Path(TEXT("Elsewhere/")));
	EXPECT_FALSE(FPackageName::MountPointExists(TEXT("/PkgTest/Inner/")));
	EXPECT_TRUE(FPackageName::MountPointExists(TEXT("/PkgTest/")));
}

TEST_F(PackageName, ValidityTellsWhatIsWrong)
{
	FText Reason;

	EXPECT_TRUE(FPackageName::IsValidLongPackageName(TEXT("/PkgTest/Dir/Thing")));
	EXPECT_FALSE(FPackageName::IsValidLongPackageName(TEXT("/PkgTest/A b"), false, &Reason));
	EXPECT_EQ(Reason.ToString(), TEXT("The name has the invalid character ' '"));
	EXPECT_FALSE(FPackageName::IsValidLongPackageName(TEXT("/PkgTest//Thing"), false, &Reason));
	EXPECT_EQ(Reason.ToString(), TEXT("The name has an empty part"));
	EXPECT_FALSE(FPackageName::IsValidLongPackageName(TEXT("/Unmounted/Thing"), false, &Reason));
	EXPECT_EQ(Reason.ToString(), TEXT("The name begins with no mounted root"));
}

TEST(PackageNames, PartsAreCutAtSlashAndDot)
{
	EXPECT_EQ(FPackageName::GetShortName(TEXT("/Game/Dir/Name")), TEXT("Name"));
	EXPECT_EQ(FPackageName::GetLongPackagePath(TEXT("/Game/Dir/Name")), TEXT("/Game/Dir"));
	EXPECT_EQ(FPackageName::ObjectPathToPackageName(TEXT("/Game/Dir/Name.Name:Sub")), TEXT("/Game/Dir/Name"));
	EXPECT_EQ(FPackageName::ObjectPathToObjectName(TEXT("/Game/Dir/Name.Object")), TEXT("Object"));
}
