#include "UObject/Field.h"

#include "UObject/Class.h"
#include "UObject/DisplayNames.h"
#include "UObject/UnrealType.h"

FFieldClass::FFieldClass(const TCHAR* InName, EClassCastFlags InId, FFieldClass* InSuper)
	: Name(InName)
	, Id(InId)
	, CastFlags(InSuper ? InId | InSuper->CastFlags : InId)
	, SuperClass(InSuper)
{
}

FString FFieldVariant::GetPathName() const
{
	return Object ? Object->GetPathName() : Field ? Field->GetPathName() : FString(TEXT("None"));
}

FFieldClass* FField::StaticClass()
{
	static FFieldClass Class(TEXT("Field"), CASTCLASS_None, nullptr);
	return &Class;
}

FField::FField(FFieldClass* InClass, FFieldVariant InOwner, const FName& InName, EObjectFlags InFlags)
	: ClassPrivate(InClass)
	, Owner(InOwner)
	, NamePrivate(InName)
	, FlagsPrivate(InFlags)
{
}

FField::~FField() = default;

FString FField::GetPathName() const
{
	return Owner.IsValid() ? Owner.GetPathName() + (Owner.IsUObject() ? TEXT(":") : TEXT(".")) + GetName() : GetName();
}

FString FField::GetFullName() const
{
	return ClassPrivate->GetName() + TEXT(" ") + GetPathName();
}

UObject* FField::GetOwnerUObject() const
{
	const FField* Top = this;
	while (Top->Owner.ToField())
	{
		Top = Top->Owner.ToField();
	}
	return Top->Owner.ToUObject();
}

UStruct* FField::GetOwnerStruct() const
{
	UObject* const OwnerObject = GetOwnerUObject();
	return OwnerObject && OwnerObject->IsA<UStruct>() ? static_cast<UStruct*>(OwnerObject) : nullptr;
}

UClass* FField::GetOwnerClass() const
{
	UObject* OwnerObject = GetOwnerUObject();
	while (OwnerObject && !OwnerObject->IsA<UClass>())
	{
		OwnerObject = OwnerObject->GetOuter();
	}
	return static_cast<UClass*>(OwnerObject);
}

const FString& FFieldMetaData::GetMetaData(const FName& Key) const
{
	static const FString Empty;
	const FString* const Value = FindMetaData(Key);
	return Value ? *Value : Empty;
}

bool FFieldMetaData::GetBoolMetaData(const FName& Key) const
{
	const FString* const Value = FindMetaData(Key);
	return Value && (Value->IsEmpty() || *Value == TEXT("true"));
}

FText FField::GetDisplayNameText() const
{
	return DisplayNameOf(*this, GetName(), IsA<FBoolProperty>());
}

FText FField::GetToolTipText(bool bShortTooltip) const
{
	return ToolTipOf(*this, GetDisplayNameText(), bShortTooltip);
}
