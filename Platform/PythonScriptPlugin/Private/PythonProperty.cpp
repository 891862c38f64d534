#include "PythonProperty.h"

#include "PythonErrors.h"
#include "PythonInterpreter.h"
#include "PythonName.h"
#include "PythonNaming.h"
#include "PythonObjects.h"
#include "PythonReferences.h"
#include "PythonStrings.h"
#include "PythonStruct.h"
#include "PythonTypeSpec.h"
#include "Templates/Casts.h"
#include "UObject/UnrealType.h"

FPythonProperty::FPythonProperty(FProperty* InProperty)
	: Property(InProperty)
	, Name(PythonNaming::NameOf(InProperty))
	, Converter(FPythonConverter::Make(InProperty))
{
}

bool FPythonProperty::IsAttribute() const
{
	return Property->HasAnyPropertyFlags(CPF_BlueprintVisible);
}

bool FPythonProperty::IsAttributeWritable() const
{
	return IsAttribute() && !Property->HasAnyPropertyFlags(CPF_BlueprintReadOnly);
}

bool FPythonProperty::IsEditable() const
{
	return Property->HasAnyPropertyFlags(CPF_Edit) ? !Property->HasAnyPropertyFlags(CPF_EditConst) : IsAttributeWritable();
}

FPythonRef FPythonProperty::Get(const void* Container) const
{
	return Converter->ToPython(Property->ContainerPtrToValuePtr<void>(Container));
}

bool FPythonProperty::Convert(PyObject* Value, void* Converted) const
{
	if (Converter->FromPython(Value, Converted))
	{
		return true;
	}
	const UStruct* const Owner = Property->GetOwnerStruct();
	PythonErrors::Prefix(FString::Printf(TEXT("%s: property '%s'"), Owner ? *Owner->GetName() : TEXT(""), *Name));
	return false;
}

bool FPythonProperty::Set(void* Container, PyObject* Value) const
{
	const FScopedPropertyValue Converted(Property);
	if (!Convert(Value, Converted.Get()))
	{
		return false;
	}
	Property->CopyCompleteValue(Property->ContainerPtrToValuePtr<void>(Container), Converted.Get());
	return true;
}

bool FPythonProperty::IsExposed(const FProperty* Property)
{
	return Property->HasAnyPropertyFlags(CPF_Edit | CPF_BlueprintVisible) && Property->ArrayDim == 1 &&
		FPythonConverter::Make(Property);
}

static TArray<const UStruct*> WithParents(const UStruct* Struct)
{
	TArray<const UStruct*> Line;
	for (; Struct; Struct = Struct->GetSuperStruct())
	{
		Line.Insert(Struct, 0);
	}
	return Line;
}

FPythonPropertyTable::FPythonPropertyTable(const UStruct* Struct)
{
	for (const UStruct* Level : WithParents(Struct))
	{
		for (TFieldIterator<FProperty> It(Level, EFieldIteratorFlags::ExcludeSuper); It; ++It)
		{
			if (!FPythonProperty::IsExposed(*It))
			{
				continue;
			}
			const FPythonProperty* const Property = Properties.Add_GetRef(MakeUnique<FPythonProperty>(*It)).Get();
			ByName.Add(Property->GetName(), Property);
			ByName.FindOrAdd(It->GetName(), Property);
		}
	}
}

const FPythonProperty* FPythonPropertyTable::Find(const FString& Name) const
{
	return ByName.FindRef(Name);
}

static TMap<const UStruct*, TSharedRef<const FPythonPropertyTable>> GPropertyTables;

static bool IsNative(const UStruct* Struct)
{
	if (const UClass* const Class = Cast<UClass>(Struct))
	{
		return Class->HasAnyClassFlags(CLASS_Native);
	}
	const UScriptStruct* const ScriptStruct = Cast<UScriptStruct>(Struct);
	return ScriptStruct && ScriptStruct->GetCppStructOps();
}

TSharedRef<const FPythonPropertyTable> FPythonPropertyTable::Of(const UStruct* Struct)
{
	if (!IsNative(Struct))
	{
		return MakeShared<FPythonPropertyTable>(Struct);
	}
	if (const TSharedRef<const FPythonPropertyTable>* const Known = GPropertyTables.Find(Struct))
	{
		return *Known;
	}
	return GPropertyTables.Add(Struct, MakeShared<FPythonPropertyTable>(Struct));
}

void FPythonPropertyTable::ReleaseAll()
{
	GPropertyTables.Empty();
}

const FPythonProperty* PythonProperty::FindOrRaise(const FPythonPropertyTable& Table, const UStruct* Struct, PyObject* Name)
{
	if (!PyUnicode_Check(Name) && !PythonName::Get(Name))
	{
		PythonErrors::RaiseUnexpectedType(TEXT("Name or str as name of a property"), Name);
		return nullptr;
	}
	const FString Text = PythonStrings::Describe(Name);
	const FPythonProperty* const Property = Table.Find(Text);
	if (!Property)
	{
		PythonErrors::Raise(PyExc_Exception,
			FString::Printf(TEXT("%s: Failed to find property '%s' for attribute '%s' on '%s'"), *Struct->GetName(), *Text, *Text,
				*Struct->GetName()));
	}
	return Property;
}

/** A property as attribute: a data descriptor of the types. */
struct FPythonAttribute
{
	TUniquePtr<FPythonProperty> Property;
	FPythonRef Doc;
	const UStruct* Owner;
	bool bOfObject;
	/** That of the owner. It outlives the attribute, which stands in its dictionary. */
	PyTypeObject* OwnerType;

	static const FPythonAttribute& From(PyObject* Self) { return PythonTypes::StateOf<FPythonAttribute>(Self); }

	/** The memory of the instance; null with an error if there is none, or if it is not one of the owner's. */
	void* ContainerOf(PyObject* Instance) const
	{
		if (!FPythonInterpreter::CheckMainThread())
		{
			return nullptr;
		}
		// No script can make an instance of the owner's own type that is something else. Of derived types it can.
		if (Py_TYPE(Instance) == OwnerType)
		{
			return bOfObject ? static_cast<void*>(PythonObjects::FromWrapper(Instance)) : PythonStruct::MemoryOf(Instance);
		}
		return bOfObject ? ObjectOf(Instance) : StructOf(Instance);
	}

private:
	void* ObjectOf(PyObject* Instance) const
	{
		if (!PythonObjects::IsWrapper(Instance))
		{
			return RaiseForeign(Instance);
		}
		UObject* const Object = PythonObjects::FromWrapper(Instance);
		return !Object || Object->IsA(static_cast<const UClass*>(Owner)) ? Object : RaiseForeign(Instance);
	}

	void* StructOf(PyObject* Instance) const
	{
		const UScriptStruct* const Struct = PythonStruct::StructOfValue(Instance);
		return Struct && Struct->IsChildOf(Owner) ? PythonStruct::MemoryOf(Instance) : RaiseForeign(Instance);
	}

	void* RaiseForeign(PyObject* Instance) const
	{
		PythonErrors::Raise(PyExc_TypeError,
			FString::Printf(TEXT("descriptor '%s' for '%s' objects doesn't apply to a '%s' object"), *Property->GetName(),
				UTF8_TO_TCHAR(OwnerType->tp_name), *PythonStrings::TypeNameOf(Instance)));
		return nullptr;
	}
};

static PyObject* GetAttribute(PyObject* Self, PyObject* Instance, PyObject*)
{
	if (!Instance)
	{
		return FPythonRef::Borrow(Self).Release();
	}
	const FPythonAttribute& Attribute = FPythonAttribute::From(Self);
	const void* const Container = Attribute.ContainerOf(Instance);
	return Container ? Attribute.Property->Get(Container).Release() : nullptr;
}

static int SetAttribute(PyObject* Self, PyObject* Instance, PyObject* Value)
{
	const FPythonAttribute& Attribute = FPythonAttribute::From(Self);
	if (!Value || !Attribute.Property->IsAttributeWritable())
	{
		PythonErrors::Raise(PyExc_AttributeError,
			FString::Printf(TEXT("attribute '%s' of '%s' %s"), *Attribute.Property->GetName(),
				*PythonStrings::TypeNameOf(Instance), Value ? TEXT("is read-only") : TEXT("cannot be deleted")));
		return -1;
	}
	void* const Container = Attribute.ContainerOf(Instance);
	return Container && Attribute.Property->Set(Container, Value) ? 0 : -1;
}

static PyObject* AttributeDoc(PyObject* Self, void*)
{
	return FPythonRef(FPythonAttribute::From(Self).Doc).Release();
}

static PyObject* AttributeName(PyObject* Self, void*)
{
	return PythonStrings::ToPython(FPythonAttribute::From(Self).Property->GetName()).Release();
}

static PyGetSetDef GAttributeGetters[] = {
	{"__doc__", AttributeDoc, nullptr, nullptr, nullptr},
	{"__name__", AttributeName, nullptr, nullptr, nullptr},
	{nullptr, nullptr, nullptr, nullptr, nullptr},
};

static PyTypeObject* AttributeType()
{
	static FPythonGlobalRef Type;
	if (!Type)
	{
		Type = FPythonTypeSpec::Of<FPythonAttribute>("unreal._Property", Py_TPFLAGS_DISALLOW_INSTANTIATION)
				   .Getters(GAttributeGetters)
				   .Function(Py_tp_descr_get, &GetAttribute)
				   .Function(Py_tp_descr_set, &SetAttribute)
				   .Make();
	}
	return Type.GetType();
}

static FString DescribeProperty(const FPythonProperty& Property)
{
	return FString::Printf(TEXT("(%s): [%s] %s"), *Property.GetConverter().TypeName(),
		Property.IsAttributeWritable() ? TEXT("Read-Write") : TEXT("Read-Only"),
		*Property.GetProperty()->GetToolTipText().ToString());
}

bool PythonProperty::AddAttributes(PyTypeObject* Type, const UStruct* Struct)
{
	for (TFieldIterator<FProperty> It(Struct, EFieldIteratorFlags::ExcludeSuper); It; ++It)
	{
		if (!It->HasAnyPropertyFlags(CPF_BlueprintVisible) || !FPythonProperty::IsExposed(*It))
		{
			continue;
		}
		TUniquePtr<FPythonProperty> Property = MakeUnique<FPythonProperty>(*It);
		const FPythonRef Name = PythonStrings::Intern(Property->GetName());
		const FPythonRef Doc = PythonStrings::ToPython(DescribeProperty(*Property));
		const FPythonRef Attribute =
			PythonTypes::New<FPythonAttribute>(AttributeType(), MoveTemp(Property), Doc, Struct, Struct->IsA<UClass>(), Type);
		if (!Attribute || !PythonTypes::AddAttribute(Type, Name.Get(), Attribute.Get()))
		{
			return false;
		}
	}
	return true;
}
