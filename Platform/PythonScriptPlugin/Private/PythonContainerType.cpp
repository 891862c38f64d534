#include "PythonContainerType.h"

#include "PythonEnum.h"
#include "PythonErrors.h"
#include "PythonName.h"
#include "PythonObjects.h"
#include "PythonStrings.h"
#include "PythonText.h"
#include "PythonTypeSpec.h"
#include "PythonTypeTable.h"
#include "UObject/EnumProperty.h"
#include "UObject/TextProperty.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

static TSharedPtr<const FPythonContainerType> Describe(
	const FProperty* Property, const FProperty* Element, const FProperty* Value)
{
	const TSharedRef<FPythonContainerType> Type = MakeShared<FPythonContainerType>();
	Type->Property = Property;
	Type->ElementProperty = Element;
	Type->Element = FPythonConverter::Make(Element);
	Type->ValueProperty = Value;
	Type->Value = Value ? FPythonConverter::Make(Value) : nullptr;
	return Type->Element && (!Value || Type->Value) ? Type : TSharedPtr<FPythonContainerType>();
}

TSharedPtr<const FPythonContainerType> FPythonContainerType::Of(const FProperty* Property)
{
	if (const FArrayProperty* const Array = CastField<FArrayProperty>(Property))
	{
		return Describe(Array, Array->Inner, nullptr);
	}
	if (const FSetProperty* const Set = CastField<FSetProperty>(Property))
	{
		return Describe(Set, Set->ElementProp, nullptr);
	}
	if (const FMapProperty* const Map = CastField<FMapProperty>(Property))
	{
		return Describe(Map, Map->KeyProp, Map->ValueProp);
	}
	return nullptr;
}

template <typename PropertyType>
static FProperty* MakeProperty()
{
	return new PropertyType(FFieldVariant(), TEXT("Element"));
}

static FProperty* MakeEnumProperty(UEnum* Enum)
{
	FEnumProperty* const Property = new FEnumProperty(FFieldVariant(), TEXT("Element"));
	Property->SetEnum(Enum);
	Property->AddCppProperty(new FInt64Property(Property, TEXT("Number")));
	return Property;
}

static FProperty* MakeStructProperty(UScriptStruct* Struct)
{
	FStructProperty* const Property = new FStructProperty(FFieldVariant(), TEXT("Element"));
	Property->SetStruct(Struct);
	return Property;
}

static FProperty* MakeObjectProperty(UClass* Class)
{
	if (Class == UClass::StaticClass())
	{
		FClassProperty* const Property = new FClassProperty(FFieldVariant(), TEXT("Element"));
		Property->SetPropertyClass(Class);
		Property->SetMetaClass(UObject::StaticClass());
		return Property;
	}
	FObjectProperty* const Property = new FObjectProperty(FFieldVariant(), TEXT("Element"));
	Property->SetPropertyClass(Class);
	return Property;
}

/** A property for values of a Python type; null with a TypeError if there is none. */
static FProperty* MakePropertyOf(PyObject* TypeObject)
{
	PyTypeObject* const Type = reinterpret_cast<PyTypeObject*>(TypeObject);
	if (!PyType_Check(TypeObject))
	{
		PythonErrors::RaiseUnexpectedType(TEXT("a type of elements"), TypeObject);
		return nullptr;
	}
	const TPair<PyTypeObject*, FProperty* (*)()> SimpleTypes[] = {
		{&PyBool_Type, &MakeProperty<FBoolProperty>},
		{&PyLong_Type, &MakeProperty<FIntProperty>},
		{&PyFloat_Type, &MakeProperty<FDoubleProperty>},
		{&PyUnicode_Type, &MakeProperty<FStrProperty>},
		{PythonName::Type(), &MakeProperty<FNameProperty>},
		{PythonText::Type(), &MakeProperty<FTextProperty>},
	};
	for (const auto& Simple : SimpleTypes)
	{
		if (PyType_IsSubtype(Type, Simple.Key))
		{
			return Simple.Value();
		}
	}
	if (UEnum* const Enum = PythonEnum::EnumOf(Type))
	{
		return MakeEnumProperty(Enum);
	}
	if (UScriptStruct* const Struct = PythonTypeTable::StructOf(Type))
	{
		return MakeStructProperty(Struct);
	}
	if (UClass* const Class = PythonTypeTable::ClassOf(Type))
	{
		return MakeObjectProperty(Class);
	}
	PyErr_Format(PyExc_TypeError, "values of type '%s' cannot be elements", Type->tp_name);
	return nullptr;
}

static TSharedPtr<const FPythonContainerType> Own(FProperty* Property)
{
	const TSharedPtr<const FPythonContainerType> Type = FPythonContainerType::Of(Property);
	// The description is shared as const from here on; nobody else has seen it yet.
	const_cast<FPythonContainerType&>(*Type).OwnProperty.Reset(Property);
	return Type;
}

/** Sets and maps look their elements up by hash. */
static bool CheckHashable(FProperty* Property, PyObject* Type)
{
	if (!Property || Property->HasAnyPropertyFlags(CPF_HasGetValueTypeHash))
	{
		return Property != nullptr;
	}
	delete Property;
	PyErr_Format(PyExc_TypeError, "values of type '%s' have no hash", reinterpret_cast<PyTypeObject*>(Type)->tp_name);
	return false;
}

TSharedPtr<const FPythonContainerType> FPythonContainerType::MakeArray(PyObject* ElementType)
{
	FProperty* const Element = MakePropertyOf(ElementType);
	if (!Element)
	{
		return nullptr;
	}
	FArrayProperty* const Array = new FArrayProperty(FFieldVariant(), TEXT("Array"));
	Array->AddCppProperty(Element);
	return ::Own(Array);
}

TSharedPtr<const FPythonContainerType> FPythonContainerType::MakeSet(PyObject* ElementType)
{
	FProperty* const Element = MakePropertyOf(ElementType);
	if (!CheckHashable(Element, ElementType))
	{
		return nullptr;
	}
	FSetProperty* const Set = new FSetProperty(FFieldVariant(), TEXT("Set"));
	Set->AddCppProperty(Element);
	return ::Own(Set);
}

TSharedPtr<const FPythonContainerType> FPythonContainerType::MakeMap(PyObject* KeyType, PyObject* ValueType)
{
	FProperty* const Key = MakePropertyOf(KeyType);
	if (!CheckHashable(Key, KeyType))
	{
		return nullptr;
	}
	FProperty* const MapValue = MakePropertyOf(ValueType);
	if (!MapValue)
	{
		delete Key;
		return nullptr;
	}
	FMapProperty* const Map = new FMapProperty(FFieldVariant(), TEXT("Map"));
	Map->AddCppProperty(Key);
	Map->AddCppProperty(MapValue);
	return ::Own(Map);
}

FPythonContainer::FPythonContainer(TSharedRef<const FPythonContainerType> InType)
	: FPythonReferenceHolder(InType->Property->ContainsObjectReference())
	, Type(InType)
	, Memory(FMemory::Malloc(InType->Property->GetSize(), InType->Property->GetMinAlignment()))
{
	Type->Property->InitializeValue(Memory);
}

FPythonContainer::~FPythonContainer()
{
	Type->Property->DestroyValue(Memory);
	FMemory::Free(Memory);
}

void FPythonContainer::AddReferencedObjects(FReferenceCollector& Collector)
{
	Type->Property->AddReferencedObjects(Memory, Collector);
}

void FPythonContainer::CopyFrom(const void* Other)
{
	Type->Property->CopyCompleteValue(Memory, Other);
}

FPythonContainer& FPythonContainer::From(PyObject* Self)
{
	return PythonTypes::StateOf<FPythonContainer>(Self);
}
