#include "UObject/CoreUObjectLog.h"
#include "UObject/ObjectTable.h"
#include "UObject/UObjectGlobals.h"

namespace
{
bool IsOfClass(const UObject* Object, const UClass* Class, bool bExactClass)
{
	return !Class || (bExactClass ? Object->GetClass() == Class : Object->IsA(Class));
}

UObject* FindInAnyPackage(const UClass* Class, FName Name, bool bExactClass)
{
	for (const FObjectItem& Item : FObjectTable::Get().GetItems())
	{
		if (Item.Object && Item.Object->GetFName() == Name && Item.Object->GetOuter() &&
			IsOfClass(Item.Object, Class, bExactClass))
		{
			return Item.Object;
		}
	}
	return nullptr;
}

/** "Class'Path'" as "Path", without quotes around either. */
FString WithoutClass(const FString& Text)
{
	int32 Quote = INDEX_NONE;
	if (!Text.FindChar(u'\'', Quote) || !Text.EndsWith(TEXT("'")))
	{
		return Text;
	}
	return Text.Mid(Quote + 1, Text.Len() - Quote - 2).TrimQuotes();
}

/** "/Root/Dir/Package.Object:Sub.Sub" into its names. */
TArray<FString> SplitPath(const FString& Path)
{
	TArray<FString> Names;
	const TCHAR* const Delimiters[] = {TEXT("."), TEXT(":")};
	int32 LastSlash = INDEX_NONE;
	Path.FindLastChar(u'/', LastSlash);
	const FString Folder = Path.Left(LastSlash + 1);
	Path.RightChop(LastSlash + 1).ParseIntoArray(Names, Delimiters, 2);
	if (Names.Num())
	{
		Names[0] = Folder + Names[0];
	}
	return Names;
}
}

UObject* StaticFindObjectFast(UClass* Class, UObject* InOuter, FName InName, bool ExactClass)
{
	if (InOuter == ANY_PACKAGE)
	{
		return FindInAnyPackage(Class, InName, ExactClass);
	}
	UObject* const Object = FObjectTable::Get().FindInOuter(InOuter, InName);
	return Object && !Object->IsUnreachable() && IsOfClass(Object, Class, ExactClass) ? Object : nullptr;
}

UObject* StaticFindObject(UClass* Class, UObject* InOuter, const TCHAR* Name, bool ExactClass)
{
	const TArray<FString> Names = SplitPath(WithoutClass(Name));
	if (!Names.Num())
	{
		return nullptr;
	}
	UObject* Outer = InOuter;
	if (Names.Num() > 1 && Names[0].StartsWith(TEXT("/")))
	{
		Outer = nullptr;
	}
	for (int32 Index = 0; Index + 1 < Names.Num(); ++Index)
	{
		Outer = StaticFindObjectFast(nullptr, Outer, FName(*Names[Index]));
		if (!Outer)
		{
			return nullptr;
		}
	}
	return StaticFindObjectFast(Class, Outer, FName(*Names.Last()), ExactClass);
}

UObject* StaticLoadObject(UClass* Class, UObject* InOuter, const TCHAR* Name, const TCHAR* Filename, uint32 LoadFlags)
{
	FString Path = WithoutClass(Name);
	if (!InOuter && Path.StartsWith(TEXT("/")) && SplitPath(Path).Num() == 1)
	{
		int32 LastSlash = INDEX_NONE;
		Path.FindLastChar(u'/', LastSlash);
		Path += TEXT(".") + Path.RightChop(LastSlash + 1);
	}
	UObject* const Object = StaticFindObject(Class, InOuter, *Path);
	if (!Object)
	{
		UE_LOG(LogUObjectGlobals, Warning, TEXT("Failed to find object '%s %s'"), *GetNameSafe(Class), *Path);
	}
	return Object;
}

UClass* StaticLoadClass(UClass* BaseClass, UObject* InOuter, const TCHAR* Name, const TCHAR* Filename, uint32 LoadFlags)
{
	UClass* const Class = static_cast<UClass*>(StaticLoadObject(UClass::StaticClass(), InOuter, Name, Filename, LoadFlags));
	if (Class && !Class->IsChildOf(BaseClass))
	{
		UE_LOG(
			LogUObjectGlobals, Warning, TEXT("%s is not a child class of %s"), *Class->GetFullName(), *BaseClass->GetFullName());
		return nullptr;
	}
	return Class;
}
