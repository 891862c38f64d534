#include "PythonValueConverters.h"

#include "PythonEnum.h"
#include "PythonErrors.h"
#include "PythonName.h"
#include "PythonNaming.h"
#include "PythonStrings.h"
#include "PythonStruct.h"
#include "PythonText.h"
#include "UObject/EnumProperty.h"
#include "UObject/TextProperty.h"
#include "UObject/UnrealType.h"

#include <limits>

/** The low 64 bits of an int or bool, or of a float cut off towards zero. */
static bool ReadInteger(PyObject* Value, uint64& OutBits)
{
	if (PyLong_Check(Value))
	{
		OutBits = PyLong_AsUnsignedLongLongMask(Value);
		return true;
	}
	if (PyFloat_Check(Value) || PyIndex_Check(Value))
	{
		const FPythonRef Integer = FPythonRef::Steal(PyFloat_Check(Value) ? PyNumber_Long(Value) : PyNumber_Index(Value));
		if (!Integer)
		{
			// Infinity and NaN are no integers.
			return false;
		}
		OutBits = PyLong_AsUnsignedLongLongMask(Integer.Get());
		return true;
	}
	return PythonErrors::RaiseUnexpectedType(TEXT("int"), Value);
}

template <typename NumberType>
class TPythonIntegerConverter final : public FPythonConverter
{
public:
	bool FromPython(PyObject* Value, void* Address) const override
	{
		uint64 Bits = 0;
		if (!ReadInteger(Value, Bits))
		{
			return false;
		}
		// A value out of range keeps its low bits: a uint32 that C++ printed comes back as the same bits.
		*static_cast<NumberType*>(Address) = static_cast<NumberType>(Bits);
		return true;
	}

	FPythonRef ToPython(const void* Address) const override
	{
		const NumberType Number = *static_cast<const NumberType*>(Address);
		return FPythonRef::Steal(std::is_signed_v<NumberType>
				? PyLong_FromLongLong(static_cast<long long>(Number))
				: PyLong_FromUnsignedLongLong(static_cast<unsigned long long>(Number)));
	}

	FString TypeName() const override { return TEXT("int"); }
};

template <typename NumberType>
class TPythonFloatConverter final : public FPythonConverter
{
public:
	bool FromPython(PyObject* Value, void* Address) const override
	{
		const double Number = PyFloat_CheckExact(Value) ? PyFloat_AS_DOUBLE(Value) : PyFloat_AsDouble(Value);
		if (Number == -1.0 && PyErr_Occurred())
		{
			if (PyErr_ExceptionMatches(PyExc_TypeError))
			{
				PyErr_Clear();
				PythonErrors::RaiseUnexpectedType(TEXT("float"), Value);
			}
			return false;
		}
		*static_cast<NumberType*>(Address) = Narrow(Number);
		return true;
	}

	FPythonRef ToPython(const void* Address) const override
	{
		return FPythonRef::Steal(PyFloat_FromDouble(*static_cast<const NumberType*>(Address)));
	}

	FString TypeName() const override { return TEXT("float"); }

private:
	/** C++ does not define the conversion of a number that is too large for a float. */
	static NumberType Narrow(double Number)
	{
		using FLimits = std::numeric_limits<NumberType>;
		if (Number > static_cast<double>(FLimits::max()))
		{
			return FLimits::infinity();
		}
		return Number < static_cast<double>(FLimits::lowest()) ? -FLimits::infinity() : static_cast<NumberType>(Number);
	}
};

class FPythonBoolConverter final : public FPythonConverter
{
public:
	explicit FPythonBoolConverter(const FBoolProperty* InProperty)
		: Property(InProperty)
	{
	}

	bool FromPython(PyObject* Value, void* Address) const override
	{
		if (!PyLong_Check(Value))
		{
			return PythonErrors::RaiseUnexpectedType(TEXT("bool"), Value);
		}
		Property->SetPropertyValue(Address, PyObject_IsTrue(Value) != 0);
		return true;
	}

	FPythonRef ToPython(const void* Address) const override
	{
		return FPythonRef::Borrow(Property->GetPropertyValue(Address) ? Py_True : Py_False);
	}

	FString TypeName() const override { return TEXT("bool"); }

private:
	const FBoolProperty* const Property;
};

class FPythonStringConverter final : public FPythonConverter
{
public:
	bool FromPython(PyObject* Value, void* Address) const override
	{
		FString& Target = *static_cast<FString*>(Address);
		if (PyUnicode_Check(Value))
		{
			Target = PythonStrings::FromStr(Value);
			return true;
		}
		if (const FName* const Name = PythonName::Get(Value))
		{
			Target = Name->ToString();
			return true;
		}
		if (const FText* const Text = PythonText::Get(Value))
		{
			Target = Text->ToString();
			return true;
		}
		return PythonErrors::RaiseUnexpectedType(TEXT("str"), Value);
	}

	FPythonRef ToPython(const void* Address) const override
	{
		return PythonStrings::ToPython(*static_cast<const FString*>(Address));
	}

	FString TypeName() const override { return TEXT("str"); }
};

class FPythonNameConverter final : public FPythonConverter
{
public:
	bool FromPython(PyObject* Value, void* Address) const override
	{
		return PythonName::FromPython(Value, *static_cast<FName*>(Address)) ||
			PythonErrors::RaiseUnexpectedType(TEXT("Name or str"), Value);
	}

	FPythonRef ToPython(const void* Address) const override { return PythonName::ToPython(*static_cast<const FName*>(Address)); }

	FString TypeName() const override { return TEXT("Name"); }
	FString AcceptedTypeName() const override { return TEXT("Union[Name, str]"); }
};

class FPythonTextConverter final : public FPythonConverter
{
public:
	bool FromPython(PyObject* Value, void* Address) const override
	{
		return PythonText::FromPython(Value, *static_cast<FText*>(Address)) ||
			PythonErrors::RaiseUnexpectedType(TEXT("Text or str"), Value);
	}

	FPythonRef ToPython(const void* Address) const override { return PythonText::ToPython(*static_cast<const FText*>(Address)); }

	FString TypeName() const override { return TEXT("Text"); }
	FString AcceptedTypeName() const override { return TEXT("Union[Text, str]"); }
};

class FPythonEnumConverter final : public FPythonConverter
{
public:
	FPythonEnumConverter(const UEnum* InEnum, const FNumericProperty* InNumber)
		: Enum(InEnum)
		, Number(InNumber)
	{
	}

	bool FromPython(PyObject* Value, void* Address) const override
	{
		int64 EnumValue = 0;
		if (!PythonEnum::FromPython(Enum, Value, EnumValue))
		{
			return PythonErrors::RaiseUnexpectedType(PythonNaming::NameOf(Enum), Value);
		}
		Number->SetIntPropertyValue(Address, EnumValue);
		return true;
	}

	FPythonRef ToPython(const void* Address) const override
	{
		return PythonEnum::ToPython(Enum, Number->GetSignedIntPropertyValue(Address));
	}

	FString TypeName() const override { return PythonNaming::NameOf(Enum); }

private:
	const UEnum* const Enum;
	const FNumericProperty* const Number;
};

class FPythonStructConverter final : public FPythonConverter
{
public:
	explicit FPythonStructConverter(UScriptStruct* InStruct)
		: Struct(InStruct)
	{
	}

	bool FromPython(PyObject* Value, void* Address) const override { return PythonStruct::FromPython(Struct, Value, Address); }
	FPythonRef ToPython(const void* Address) const override { return PythonStruct::ToPython(Struct, Address); }
	FString TypeName() const override { return PythonNaming::NameOf(Struct); }
	FString AcceptedTypeName() const override
	{
		return TEXT("Union[") + TypeName() + TEXT(", Mapping[str, Any], Sequence[Any]]");
	}

private:
	UScriptStruct* const Struct;
};

template <typename PropertyType, typename ConverterType>
static TUniquePtr<FPythonConverter> MakeStateless(const FProperty* Property)
{
	return Property->IsA<PropertyType>() ? MakeUnique<ConverterType>() : TUniquePtr<FPythonConverter>();
}

using FMakeConverter = TUniquePtr<FPythonConverter> (*)(const FProperty* Property);

static const FMakeConverter GStatelessConverters[] = {
	&MakeStateless<FIntProperty, TPythonIntegerConverter<int32>>,
	&MakeStateless<FInt8Property, TPythonIntegerConverter<int8>>,
	&MakeStateless<FInt16Property, TPythonIntegerConverter<int16>>,
	&MakeStateless<FInt64Property, TPythonIntegerConverter<int64>>,
	&MakeStateless<FByteProperty, TPythonIntegerConverter<uint8>>,
	&MakeStateless<FUInt16Property, TPythonIntegerConverter<uint16>>,
	&MakeStateless<FUInt32Property, TPythonIntegerConverter<uint32>>,
	&MakeStateless<FUInt64Property, TPythonIntegerConverter<uint64>>,
	&MakeStateless<FFloatProperty, TPythonFloatConverter<float>>,
	&MakeStateless<FDoubleProperty, TPythonFloatConverter<double>>,
	&MakeStateless<FStrProperty, FPythonStringConverter>,
	&MakeStateless<FNameProperty, FPythonNameConverter>,
	&MakeStateless<FTextProperty, FPythonTextConverter>,
};

TUniquePtr<FPythonConverter> PythonConverters::MakeForValue(const FProperty* Property)
{
	if (const FBoolProperty* const Bool = CastField<FBoolProperty>(Property))
	{
		return MakeUnique<FPythonBoolConverter>(Bool);
	}
	if (const FEnumProperty* const Enum = CastField<FEnumProperty>(Property))
	{
		return MakeUnique<FPythonEnumConverter>(Enum->GetEnum(), Enum->GetUnderlyingProperty());
	}
	if (const FByteProperty* const Byte = CastField<FByteProperty>(Property); Byte && Byte->Enum)
	{
		return MakeUnique<FPythonEnumConverter>(Byte->Enum, Byte);
	}
	if (const FStructProperty* const Struct = CastField<FStructProperty>(Property))
	{
		return MakeUnique<FPythonStructConverter>(Struct->Struct);
	}
	for (const FMakeConverter MakeConverter : GStatelessConverters)
	{
		if (TUniquePtr<FPythonConverter> Converter = MakeConverter(Property))
		{
			return Converter;
		}
	}
	return nullptr;
}
