#include "UObject/UObjectBaseUtility.h"

#include "UObject/Class.h"
#include "UObject/ObjectTable.h"
#include "UObject/Package.h"

FString UObjectBaseUtility::GetPathName(const UObject* StopOuter) const
{
	const UObject* const Outer = GetOuter();
	if (!Outer || Outer == StopOuter)
	{
		return GetName();
	}
	// What lies directly in an object of a package stands behind a colon, everything else behind a dot.
	const bool bSubobject = !Outer->IsA<UPackage>() && Outer->GetOuter() && Outer->GetOuter()->IsA<UPackage>();
	return Outer->GetPathName(StopOuter) + (bSubobject ? TEXT(":") : TEXT(".")) + GetName();
}

FString UObjectBaseUtility::GetFullName(const UObject* StopOuter) const
{
	return GetClass()->GetName() + TEXT(" ") + GetPathName(StopOuter);
}

UPackage* UObjectBaseUtility::GetOutermost() const
{
	const UObjectBaseUtility* Top = this;
	while (Top->GetOuter())
	{
		Top = Top->GetOuter();
	}
	return Top->IsA<UPackage>() ? static_cast<UPackage*>(const_cast<UObjectBaseUtility*>(Top)) : nullptr;
}

UObject* UObjectBaseUtility::GetTypedOuter(UClass* Target) const
{
	UObject* Outer = GetOuter();
	while (Outer && !Outer->IsA(Target))
	{
		Outer = Outer->GetOuter();
	}
	return Outer;
}

bool UObjectBaseUtility::IsIn(const UObject* SomeOuter) const
{
	for (const UObject* Outer = GetOuter(); Outer; Outer = Outer->GetOuter())
	{
		if (Outer == SomeOuter)
		{
			return true;
		}
	}
	return false;
}

bool UObjectBaseUtility::IsA(const UClass* SomeBase) const
{
	return GetClass()->IsChildOf(SomeBase);
}

bool UObjectBaseUtility::IsTemplate(EObjectFlags TemplateTypes) const
{
	const UObjectBaseUtility* Object = this;
	while (Object && !Object->HasAnyFlags(TemplateTypes))
	{
		Object = Object->GetOuter();
	}
	return Object != nullptr;
}

void UObjectBaseUtility::AddToRoot()
{
	FObjectTable::Get().ItemOf(this).Flags |= EInternalObjectFlags::RootSet;
}

void UObjectBaseUtility::RemoveFromRoot()
{
	FObjectTable::Get().ItemOf(this).Flags &= ~EInternalObjectFlags::RootSet;
}

bool UObjectBaseUtility::IsRooted() const
{
	return FObjectTable::Get().ItemOf(this).HasAnyFlags(EInternalObjectFlags::RootSet);
}

void UObjectBaseUtility::MarkAsGarbage()
{
	checkf(!IsRooted(), TEXT("%s is in the root set and cannot be garbage"), *GetFullName());
	AtomicallySetFlags(RF_Garbage);
}

void UObjectBaseUtility::ClearGarbage()
{
	AtomicallyClearFlags(RF_Garbage | RF_PendingKill);
}

bool UObjectBaseUtility::IsUnreachable() const
{
	return FObjectTable::Get().ItemOf(this).HasAnyFlags(EInternalObjectFlags::Unreachable);
}

bool UObjectBaseUtility::MarkPackageDirty() const
{
	UPackage* const Package = HasAnyFlags(RF_Transient) ? nullptr : GetOutermost();
	if (!Package || Package->HasAnyFlags(RF_Transient))
	{
		return false;
	}
	Package->SetDirtyFlag(true);
	return true;
}

FString GetPathNameSafe(const UObjectBaseUtility* Object)
{
	return Object ? Object->GetPathName() : FString(TEXT("None"));
}

FString GetNameSafe(const UObjectBaseUtility* Object)
{
	return Object ? Object->GetName() : FString(TEXT("None"));
}

FString GetFullNameSafe(const UObjectBaseUtility* Object)
{
	return Object ? Object->GetFullName() : FString(TEXT("None"));
}
