#include "PythonObjectConverters.h"

#include "PythonErrors.h"
#include "PythonNaming.h"
#include "PythonObjects.h"
#include "UObject/UnrealType.h"

class FPythonObjectConverter final : public FPythonConverter
{
public:
	explicit FPythonObjectConverter(const FObjectPropertyBase* InProperty)
		: Property(InProperty)
	{
	}

	bool FromPython(PyObject* Value, void* Address) const override
	{
		UObject* Object = nullptr;
		if (Value != Py_None && !ReadObject(Value, Object))
		{
			return false;
		}
		Property->SetObjectPropertyValue(Address, Object);
		return true;
	}

	FPythonRef ToPython(const void* Address) const override
	{
		return PythonObjects::ToPython(Property->GetObjectPropertyValue(Address));
	}

	FString TypeName() const override { return PythonNaming::NameOf(Property->PropertyClass); }
	FString AcceptedTypeName() const override { return TEXT("Optional[") + TypeName() + TEXT("]"); }

private:
	bool ReadObject(PyObject* Value, UObject*& OutObject) const
	{
		if (!PythonObjects::IsWrapper(Value))
		{
			return PythonErrors::RaiseUnexpectedType(TypeName() + TEXT(" or None"), Value);
		}
		OutObject = PythonObjects::FromWrapper(Value);
		if (!OutObject)
		{
			return false;
		}
		return OutObject->IsA(Property->PropertyClass) || PythonErrors::RaiseUnexpectedType(TypeName() + TEXT(" or None"), Value);
	}

	const FObjectPropertyBase* const Property;
};

class FPythonClassConverter final : public FPythonConverter
{
public:
	explicit FPythonClassConverter(const FClassProperty* InProperty)
		: Property(InProperty)
	{
	}

	bool FromPython(PyObject* Value, void* Address) const override
	{
		UClass* const Class = PythonObjects::ClassFromPython(Value);
		const bool bFits = Class && (!Property->MetaClass || Class->IsChildOf(Property->MetaClass));
		if (!bFits && Value != Py_None)
		{
			return PythonErrors::RaiseUnexpectedType(Expected(), Value);
		}
		Property->SetObjectPropertyValue(Address, Class);
		return true;
	}

	FPythonRef ToPython(const void* Address) const override
	{
		return PythonObjects::ToPython(Property->GetObjectPropertyValue(Address));
	}

	FString TypeName() const override { return TEXT("Class"); }
	FString AcceptedTypeName() const override { return TEXT("Optional[Union[Class, type]]"); }

private:
	FString Expected() const
	{
		return Property->MetaClass ? TEXT("class derived from ") + PythonNaming::NameOf(Property->MetaClass)
								   : FString(TEXT("Class or type"));
	}

	const FClassProperty* const Property;
};

TUniquePtr<FPythonConverter> PythonConverters::MakeForObject(const FProperty* Property)
{
	if (const FClassProperty* const Class = CastField<FClassProperty>(Property))
	{
		return MakeUnique<FPythonClassConverter>(Class);
	}
	if (const FObjectPropertyBase* const Object = CastField<FObjectPropertyBase>(Property))
	{
		return MakeUnique<FPythonObjectConverter>(Object);
	}
	return nullptr;
}
