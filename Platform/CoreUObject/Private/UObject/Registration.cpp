#include "UObject/GeneratedCppIncludes.h"

#include "Containers/StringConv.h"
#include "Modules/ModuleManager.h"
#include "UObject/ObjectTable.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

#include <new>

namespace
{
/** What the statics of the libraries have announced and nobody has made yet. */
struct FAnnouncedTypes
{
	TArray<UClass* (*)()> Classes;
	TArray<UScriptStruct* (*)()> Structs;
	TArray<UEnum* (*)()> Enums;

	static FAnnouncedTypes& Get()
	{
		static FAnnouncedTypes& Types = *new FAnnouncedTypes;
		return Types;
	}
};

FString FromUtf8(const char* Text)
{
	return FString(FUTF8ToTCHAR(Text).Get());
}
}

namespace UECodeGen
{
/**
 * Makes types in two steps. A type exists from the first on, so that others can point at it; what it consists of is filled in
 * when no other type is half made, parents first.
 */
class FRegistration
{
public:
	static UClass* BeginClass(UClass*& OutClass, const FClassParams& Params)
	{
		OutClass = Allocate<UClass>(Params.Name);
		OutClass->ClassConstructor = Params.Constructor;
		OutClass->ClassAddReferencedObjects = Params.AddReferencedObjects;
		OutClass->ClassFlags = Params.Flags | CLASS_Native;
		OutClass->ClassCastFlags = Params.CastFlags;
		OutClass->PropertiesSize = Params.Size;
		OutClass->MinAlignment = Params.Alignment;
		OutClass->ClassConfigName = Params.ConfigName ? FName(Params.ConfigName) : FName();
		if (Params.Super)
		{
			OutClass->SetSuperStruct(Params.Super());
		}
		FinishAllocation(OutClass, UClass::StaticClass(), Params.Package);
		UClass* const Class = OutClass;
		Defer([Class, &Params] { FillClass(*Class, Params); });
		return OutClass;
	}

	static UScriptStruct* BeginStruct(UScriptStruct*& OutStruct, const FStructParams& Params)
	{
		UClass* const Class = UScriptStruct::StaticClass();
		OutStruct = Allocate<UScriptStruct>(Params.Name);
		OutStruct->StructFlags = Params.Flags | STRUCT_Native;
		OutStruct->CppStructOps = Params.Ops;
		OutStruct->PropertiesSize = Params.Ops->Size;
		OutStruct->MinAlignment = Params.Ops->Alignment;
		if (Params.Ops->Identical)
		{
			OutStruct->StructFlags |= STRUCT_IdenticalNative;
		}
		if (Params.Super)
		{
			OutStruct->SetSuperStruct(Params.Super());
		}
		FinishAllocation(OutStruct, Class, Params.Package);
		UScriptStruct* const Struct = OutStruct;
		Defer([Struct, &Params] { FillStruct(*Struct, Params); });
		return OutStruct;
	}

	static UEnum* MakeEnum(UEnum*& OutEnum, const FEnumParams& Params)
	{
		UClass* const Class = UEnum::StaticClass();
		OutEnum = Allocate<UEnum>(Params.Name);
		FinishAllocation(OutEnum, Class, Params.Package);
		OutEnum->CppType = FromUtf8(Params.CppType);
		const bool bScoped = Params.CppForm != UEnum::ECppForm::Regular;
		TArray<TPair<FName, int64>> Names;
		for (const FEnumEntry& Entry : Params.Entries)
		{
			const FString Name = FromUtf8(Entry.Name);
			Names.Add(TPair<FName, int64>(FName(*(bScoped ? OutEnum->GetName() + TEXT("::") + Name : Name)), Entry.Value));
		}
		OutEnum->SetEnums(Names, Params.CppForm);
		for (int32 Index = 0; Index < Params.Entries.Num; ++Index)
		{
			for (const FMetaDataPair& Pair : Params.Entries.Data[Index].MetaData)
			{
				OutEnum->SetMetaData(*FromUtf8(Pair.Key), *FromUtf8(Pair.Value), Index);
			}
		}
		SetMetaData(*OutEnum, Params.MetaData);
		return OutEnum;
	}

private:
	template <typename T>
	static T* Allocate(const char* Name)
	{
		void* const Memory = FMemory::MallocZeroed(sizeof(T));
		FObjectTable::Get().BeginConstruction(
			Memory, {nullptr, nullptr, FName(Name), RF_Public | RF_MarkAsNative | RF_Transient});
		T* const Object = ::new (Memory) T;
		FObjectTable::Get().ItemOf(Object).Flags |= EInternalObjectFlags::Native;
		return Object;
	}

	static void FinishAllocation(UObject* Object, UClass* Class, const char* PackageName)
	{
		FObjectTable::Get().SetClassAndOuter(*Object, Class, CreatePackage(*FromUtf8(PackageName)));
		FObjectTable::Get().ItemOf(Object->GetOuter()).Flags |= EInternalObjectFlags::Native;
	}

	static void SetMetaData(FFieldMetaData& Field, const TList<FMetaDataPair>& MetaData)
	{
		for (const FMetaDataPair& Pair : MetaData)
		{
			Field.SetMetaData(FName(Pair.Key), *FromUtf8(Pair.Value));
		}
	}

	static void AddProperties(UStruct& Struct, int32 Size, const TList<FPropertyParams>& Properties)
	{
		for (const FPropertyParams& Params : Properties)
		{
			FProperty* const Property = Params.New(&Struct, FName(Params.Name));
			Property->SetPropertyFlags(Params.Flags);
			Property->ArrayDim = Params.ArrayDim;
			int32 Offset = Params.Offset;
			if (Params.SetBit)
			{
				Offset = FindBitField(*static_cast<FBoolProperty*>(Property), Size, Params);
			}
			Property->SetOffset_Internal(Offset);
			SetMetaData(*Property, Params.MetaData);
			Struct.AddCppProperty(Property);
		}
		Struct.StaticLink();
	}

	/** Where the bit lies shows in empty memory after it was set. */
	static int32 FindBitField(FBoolProperty& Property, int32 Size, const FPropertyParams& Params)
	{
		TArray<uint8> Memory;
		Memory.SetNumZeroed(Size);
		Params.SetBit(Memory.GetData());
		const int32 Byte = Memory.IndexOfByPredicate([](uint8 Value) { return Value != 0; });
		check(Byte != INDEX_NONE);
		const int32 Offset = Byte / Params.BitFieldSize * Params.BitFieldSize;
		Property.SetBoolSize(uint32(Params.BitFieldSize), false, uint32(Memory[Byte]) << (8 * (Byte - Offset)));
		return Offset;
	}

	static void FillStruct(UScriptStruct& Struct, const FStructParams& Params)
	{
		SetMetaData(Struct, Params.MetaData);
		AddProperties(Struct, Params.Ops->Size, Params.Properties);
	}

	static void FillClass(UClass& Class, const FClassParams& Params)
	{
		SetMetaData(Class, Params.MetaData);
		AddProperties(Class, Params.Size, Params.Properties);
		for (const FFunctionParams& FunctionParams : Params.Functions)
		{
			UFunction* const Function =
				NewObject<UFunction>(&Class, FName(FunctionParams.Name), RF_Public | RF_MarkAsNative | RF_Transient);
			Function->FunctionFlags = FunctionParams.Flags;
			Function->PropertiesSize = FunctionParams.ParmsSize;
			Function->MinAlignment = FunctionParams.ParmsAlignment;
			Function->SetNativeFunc(FunctionParams.Exec);
			SetMetaData(*Function, FunctionParams.MetaData);
			AddProperties(*Function, FunctionParams.ParmsSize, FunctionParams.Properties);
			Class.AddFunctionToFunctionMap(Function, Function->GetFName());
		}
		Class.ClassFlags |= CLASS_Constructed;
	}

	static void Defer(TFunction<void()> Fill)
	{
		static TArray<TFunction<void()>> Queue;
		static bool bFilling = false;
		Queue.Add(MoveTemp(Fill));
		if (bFilling)
		{
			return;
		}
		bFilling = true;
		for (int32 Index = 0; Index < Queue.Num(); ++Index)
		{
			const TFunction<void()> Next = MoveTemp(Queue[Index]);
			Next();
		}
		Queue.Empty();
		bFilling = false;
	}
};

UClass* ConstructClass(UClass*& OutClass, const FClassParams& Params)
{
	return FRegistration::BeginClass(OutClass, Params);
}

UScriptStruct* ConstructStruct(UScriptStruct*& OutStruct, const FStructParams& Params)
{
	return FRegistration::BeginStruct(OutStruct, Params);
}

UEnum* ConstructEnum(UEnum*& OutEnum, const FEnumParams& Params)
{
	return FRegistration::MakeEnum(OutEnum, Params);
}

FAutoRegister::FAutoRegister(UClass* (*StaticClass)())
{
	FAnnouncedTypes::Get().Classes.Add(StaticClass);
}

FAutoRegister::FAutoRegister(UScriptStruct* (*StaticStruct)())
{
	FAnnouncedTypes::Get().Structs.Add(StaticStruct);
}

FAutoRegister::FAutoRegister(UEnum* (*StaticEnum)())
{
	FAnnouncedTypes::Get().Enums.Add(StaticEnum);
}
}

void ProcessNewlyLoadedUObjects(FName Package, bool bCanProcessNewlyLoadedObjects)
{
	if (!bCanProcessNewlyLoadedObjects)
	{
		return;
	}
	FAnnouncedTypes New;
	::Swap(New, FAnnouncedTypes::Get());
	for (UEnum* (*const StaticEnum)() : New.Enums)
	{
		StaticEnum();
	}
	for (UScriptStruct* (*const StaticStruct)() : New.Structs)
	{
		StaticStruct();
	}
	for (UClass* (*const StaticClass)() : New.Classes)
	{
		StaticClass();
	}
	for (UClass* (*const StaticClass)() : New.Classes)
	{
		StaticClass()->GetDefaultObject();
	}
}
