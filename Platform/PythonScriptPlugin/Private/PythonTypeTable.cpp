#include "PythonTypeTable.h"

#include "PythonEnum.h"
#include "PythonErrors.h"
#include "PythonHostedFunctions.h"
#include "PythonMethods.h"
#include "PythonNaming.h"
#include "PythonObjects.h"
#include "PythonProperty.h"
#include "PythonStrings.h"
#include "PythonStruct.h"
#include "PythonTypeSpec.h"
#include "Templates/Casts.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UObjectIterator.h"
#include "UObject/UnrealType.h"

static TMap<const UStruct*, FPythonRef> GTypes;
static TMap<PyTypeObject*, UStruct*> GStructsOfTypes;
static TArray<UClass*> GClasses;
static TArray<UScriptStruct*> GStructs;
static TArray<UEnum*> GEnums;

static PyTypeObject* FindType(const UStruct* Struct)
{
	const FPythonRef* const Type = GTypes.Find(Struct);
	return Type ? PythonTypes::AsType(*Type) : nullptr;
}

PyTypeObject* PythonTypeTable::TypeOf(const UClass* Class)
{
	for (; Class; Class = Class->GetSuperClass())
	{
		if (PyTypeObject* const Type = FindType(Class))
		{
			return Type;
		}
	}
	return PythonObjects::BaseType();
}

PyTypeObject* PythonTypeTable::TypeOf(const UScriptStruct* Struct)
{
	return FindType(Struct);
}

template <typename StructType>
static StructType* StructBehind(PyTypeObject* Type)
{
	for (; Type; Type = Type->tp_base)
	{
		if (UStruct* const* const Struct = GStructsOfTypes.Find(Type))
		{
			return Cast<StructType>(*Struct);
		}
	}
	return nullptr;
}

PyTypeObject* PythonTypeTable::OwnTypeOf(const UStruct* Struct)
{
	return FindType(Struct);
}

UClass* PythonTypeTable::ClassOf(PyTypeObject* Type)
{
	return StructBehind<UClass>(Type);
}

UScriptStruct* PythonTypeTable::StructOf(PyTypeObject* Type)
{
	return StructBehind<UScriptStruct>(Type);
}

const TArray<UClass*>& PythonTypeTable::Classes()
{
	return GClasses;
}

const TArray<UScriptStruct*>& PythonTypeTable::Structs()
{
	return GStructs;
}

const TArray<UEnum*>& PythonTypeTable::Enums()
{
	return GEnums;
}

/** Types come under their Python name; the first of that name keeps it, above all the built-in ones. */
static bool AddToModule(PyObject* Module, const FString& Name, const FPythonRef& Type)
{
	const FPythonRef Key = PythonStrings::Intern(Name);
	return PyObject_HasAttr(Module, Key.Get()) || PyObject_SetAttr(Module, Key.Get(), Type.Get()) == 0;
}

static FPythonRef MakeClassType(UClass* Class)
{
	const TArray<ANSICHAR> Name = PythonStrings::ToUtf8(TEXT("unreal.") + PythonNaming::NameOf(Class));
	const TArray<ANSICHAR> Doc = PythonStrings::ToUtf8(Class->GetToolTipText().ToString());
	return FPythonTypeSpec(Name.GetData(), 0, Py_TPFLAGS_BASETYPE)
		.Base(PythonTypeTable::TypeOf(Class->GetSuperClass()))
		.Doc(Doc.GetData())
		.Make();
}

static FPythonRef MakeStructType(UScriptStruct* Struct)
{
	const UScriptStruct* const Parent = static_cast<const UScriptStruct*>(Struct->GetSuperStruct());
	return PythonStruct::MakeType(Struct, Parent ? FindType(Parent) : nullptr);
}

static void Remember(UStruct* Struct, const FPythonRef& Type)
{
	GTypes.Add(Struct, Type);
	GStructsOfTypes.Add(PythonTypes::AsType(Type), Struct);
}

/** Adds the type of a class after that of its parent. */
static bool AddClass(PyObject* Module, UClass* Class)
{
	if (FindType(Class))
	{
		return true;
	}
	if (Class->GetSuperClass() && !AddClass(Module, Class->GetSuperClass()))
	{
		return false;
	}
	const FPythonRef Type = MakeClassType(Class);
	if (!Type)
	{
		return false;
	}
	Remember(Class, Type);
	GClasses.Add(Class);
	return AddToModule(Module, PythonNaming::NameOf(Class), Type);
}

static bool AddStruct(PyObject* Module, UScriptStruct* Struct)
{
	if (FindType(Struct))
	{
		return true;
	}
	UScriptStruct* const Parent = static_cast<UScriptStruct*>(Struct->GetSuperStruct());
	if (Parent && !AddStruct(Module, Parent))
	{
		return false;
	}
	const FPythonRef Type = MakeStructType(Struct);
	if (!Type)
	{
		return false;
	}
	Remember(Struct, Type);
	GStructs.Add(Struct);
	return AddToModule(Module, PythonNaming::NameOf(Struct), Type);
}

static bool AddEnum(PyObject* Module, UEnum* Enum)
{
	if (GEnums.Contains(Enum))
	{
		return true;
	}
	const FPythonRef Type = PythonEnum::MakeType(Enum);
	if (!Type)
	{
		return false;
	}
	GEnums.Add(Enum);
	return AddToModule(Module, PythonNaming::NameOf(Enum), Type);
}

template <typename FieldType>
static TArray<FieldType*> CollectNative(bool (*IsWanted)(const FieldType*))
{
	TArray<FieldType*> Result;
	for (TObjectIterator<FieldType> It; It; ++It)
	{
		if (IsWanted(*It))
		{
			Result.Add(*It);
		}
	}
	return Result;
}

bool PythonTypeTable::Update(PyObject* Module)
{
	// Names of all types first: functions and properties of one type may speak of any other.
	const int32 FirstNewClass = GClasses.Num();
	const int32 FirstNewStruct = GStructs.Num();
	for (UEnum* Enum : CollectNative<UEnum>([](const UEnum* Candidate) { return !Candidate->CppType.IsEmpty(); }))
	{
		if (!AddEnum(Module, Enum))
		{
			return false;
		}
	}
	for (UScriptStruct* Struct :
		CollectNative<UScriptStruct>([](const UScriptStruct* Candidate) { return Candidate->GetCppStructOps() != nullptr; }))
	{
		if (!AddStruct(Module, Struct))
		{
			return false;
		}
	}
	for (UClass* Class : CollectNative<UClass>([](const UClass* Candidate) { return Candidate->HasAnyClassFlags(CLASS_Native); }))
	{
		if (!AddClass(Module, Class))
		{
			return false;
		}
	}

	for (int32 Index = FirstNewStruct; Index < GStructs.Num(); ++Index)
	{
		if (!PythonProperty::AddAttributes(FindType(GStructs[Index]), GStructs[Index]))
		{
			return false;
		}
	}
	for (int32 Index = FirstNewClass; Index < GClasses.Num(); ++Index)
	{
		PyTypeObject* const Type = FindType(GClasses[Index]);
		if (!PythonProperty::AddAttributes(Type, GClasses[Index]) || !PythonMethods::Add(Type, GClasses[Index]))
		{
			return false;
		}
	}
	for (int32 Index = FirstNewClass; Index < GClasses.Num(); ++Index)
	{
		if (!PythonHostedFunctions::Add(GClasses[Index]))
		{
			return false;
		}
	}
	return true;
}

void PythonTypeTable::ReleaseAll()
{
	GClasses.Empty();
	GStructs.Empty();
	GEnums.Empty();
	GStructsOfTypes.Empty();
	GTypes.Empty();
}
