#include "UObject/Object.h"

#include "Logging/LogMacros.h"
#include "UObject/CoreUObjectLog.h"
#include "UObject/ObjectTable.h"
#include "UObject/Package.h"
#include "UObject/Stack.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

void UObject::BeginDestroy()
{
	SetFlags(RF_BeginDestroyed);
}

void UObject::FinishDestroy()
{
	SetFlags(RF_FinishDestroyed);
}

UWorld* UObject::GetWorld() const
{
	return GetOuter() ? GetOuter()->GetWorld() : nullptr;
}

bool UObject::IsAsset() const
{
	return HasAnyFlags(RF_Public) && !HasAnyFlags(RF_Transient | RF_ClassDefaultObject | RF_Garbage | RF_PendingKill) &&
		GetOuter() && GetOuter()->IsA<UPackage>() && !GetOuter()->HasAnyFlags(RF_Transient);
}

bool UObject::Modify(bool bAlwaysMarkDirty)
{
	if (bAlwaysMarkDirty)
	{
		MarkPackageDirty();
	}
	FCoreUObjectDelegates::OnObjectModified.Broadcast(this);
	return false;
}

void UObject::PostEditChange()
{
	FPropertyChangedEvent Event(nullptr);
	PostEditChangeProperty(Event);
}

void UObject::PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent)
{
	FCoreUObjectDelegates::OnObjectPropertyChanged.Broadcast(this, PropertyChangedEvent);
}

/** Why an object cannot get a name in an outer; null if it can. */
static const TCHAR* FindReasonAgainstRename(const UObject& Object, const UObject* Outer, FName Name)
{
	if (Object.HasAnyFlags(RF_ClassDefaultObject) || Object.IsA<UField>())
	{
		return TEXT("default objects, types and functions keep their names and places");
	}
	if (Object.IsA<UPackage>() && (Outer != Object.GetOuter() || FObjectTable::Get().IsPermanent(&Object)))
	{
		return TEXT("packages keep their places, those of the engine their names too");
	}
	if (Outer == &Object || (Outer && Outer->IsIn(&Object)))
	{
		return TEXT("it would lie within itself");
	}
	const UObject* const Taken = FObjectTable::Get().FindInOuter(Outer, Name);
	return Taken && Taken != &Object ? TEXT("the name is taken") : nullptr;
}

bool UObject::Rename(const TCHAR* NewName, UObject* NewOuter, uint32 Flags)
{
	UObject* const OldOuter = GetOuter();
	const FName OldName = GetFName();
	UObject* const Outer = NewOuter ? NewOuter : OldOuter;
	const FName GivenName(NewName ? NewName : TEXT(""));
	const FName Name = GivenName.IsNone() ? MakeUniqueObjectName(Outer, GetClass()) : GivenName;
	if (const TCHAR* const Reason = FindReasonAgainstRename(*this, Outer, Name))
	{
		UE_LOG(LogObj, Error, TEXT("%s cannot become '%s' in %s: %s"), *GetFullName(), *Name.ToString(), *GetFullNameSafe(Outer),
			Reason);
		return false;
	}
	MarkPackageDirty();
	FObjectTable::Get().SetNameAndOuter(*this, Name, Outer);
	MarkPackageDirty();
	PostRename(OldOuter, OldName);
	return true;
}

UFunction* UObject::FindFunction(FName InName) const
{
	return GetClass()->FindFunctionByName(InName);
}

UFunction* UObject::FindFunctionChecked(FName InName) const
{
	UFunction* const Function = FindFunction(InName);
	if (!Function)
	{
		UE_LOG(LogScriptCore, Fatal, TEXT("Failed to find function %s in %s"), *InName.ToString(), *GetFullName());
	}
	return Function;
}

void UObject::ProcessEvent(UFunction* Function, void* Parms)
{
	checkf(!IsUnreachable(), TEXT("%s is called on the unreachable object %s"), *Function->GetPathName(), *GetFullName());
	FFrame Stack{Function, this, static_cast<uint8*>(Parms)};
	Function->Invoke(this, Stack);
}

UObject* UObject::GetArchetype() const
{
	if (HasAnyFlags(RF_ClassDefaultObject))
	{
		UClass* const Super = GetClass()->GetSuperClass();
		return Super ? Super->GetDefaultObject() : nullptr;
	}
	return GetClass()->GetDefaultObject();
}

void UObject::AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector)
{
}
