#pragma once

#include "Containers/UnrealString.h"
#include "UObject/UObjectBase.h"

class UPackage;

/** What every object can tell about its place among others. */
class COREUOBJECT_API UObjectBaseUtility : public UObjectBase
{
public:
	bool HasAnyFlags(EObjectFlags FlagsToCheck) const { return (GetFlags() & FlagsToCheck) != RF_NoFlags; }
	bool HasAllFlags(EObjectFlags FlagsToCheck) const { return (GetFlags() & FlagsToCheck) == FlagsToCheck; }
	void SetFlags(EObjectFlags NewFlags) { AtomicallySetFlags(NewFlags); }
	void ClearFlags(EObjectFlags FlagsToClear) { AtomicallyClearFlags(FlagsToClear); }

	/** "Name", e.g. "VelmoraData_0". */
	FString GetName() const { return GetFName().ToString(); }
	/** "Package.Object:Sub", relative to StopOuter if that is one of the outers. */
	FString GetPathName(const UObject* StopOuter = nullptr) const;
	/** "Class Path". */
	FString GetFullName(const UObject* StopOuter = nullptr) const;

	UPackage* GetOutermost() const;
	UPackage* GetPackage() const { return GetOutermost(); }
	UObject* GetTypedOuter(UClass* Target) const;
	template <typename T>
	T* GetTypedOuter() const
	{
		return static_cast<T*>(GetTypedOuter(T::StaticClass()));
	}
	bool IsIn(const UObject* SomeOuter) const;

	bool IsA(const UClass* SomeBase) const;
	template <typename T>
	bool IsA() const
	{
		return IsA(T::StaticClass());
	}
	/** True for a class default object, and with IncludeOuters for what lies within one. */
	bool IsTemplate(EObjectFlags TemplateTypes = RF_ArchetypeObject | RF_ClassDefaultObject) const;

	/** Keeps the object, and what it refers to, from being collected. */
	void AddToRoot();
	void RemoveFromRoot();
	bool IsRooted() const;

	/** Ends the object's use: weak pointers turn null at once, references at the next collection, which destroys it. */
	void MarkAsGarbage();
	void ClearGarbage();
	bool IsUnreachable() const;

	/** The package turns dirty, unless the object is transient. */
	bool MarkPackageDirty() const;
};

FORCEINLINE bool IsValidChecked(const UObjectBaseUtility* Test)
{
	return !Test->HasAnyFlags(RF_PendingKill | RF_Garbage);
}

COREUOBJECT_API FString GetPathNameSafe(const UObjectBaseUtility* Object);
COREUOBJECT_API FString GetNameSafe(const UObjectBaseUtility* Object);
COREUOBJECT_API FString GetFullNameSafe(const UObjectBaseUtility* Object);
