#include "PythonContainerConverters.h"

#include "PythonContainers.h"
#include "UObject/UnrealType.h"

class FPythonContainerConverter final : public FPythonConverter
{
public:
	explicit FPythonContainerConverter(TSharedRef<const FPythonContainerType> InType)
		: Type(InType)
	{
	}

	bool FromPython(PyObject* Value, void* Address) const override { return PythonContainers::Fill(*Type, Value, Address); }
	FPythonRef ToPython(const void* Address) const override { return PythonContainers::ToPython(Type, Address); }

	FString TypeName() const override { return Describe(TEXT("Array"), TEXT("Set"), TEXT("Map"), &FPythonConverter::TypeName); }

	FString AcceptedTypeName() const override
	{
		return Describe(TEXT("Iterable"), TEXT("Iterable"), TEXT("Mapping"), &FPythonConverter::AcceptedTypeName);
	}

private:
	FString Describe(const TCHAR* Array, const TCHAR* Set, const TCHAR* Map, FString (FPythonConverter::*Name)() const) const
	{
		const FString Element = ((*Type->Element).*Name)();
		if (Type->Value)
		{
			return FString::Printf(TEXT("%s[%s, %s]"), Map, *Element, *((*Type->Value).*Name)());
		}
		return FString::Printf(TEXT("%s[%s]"), Type->Property->IsA<FArrayProperty>() ? Array : Set, *Element);
	}

	const TSharedRef<const FPythonContainerType> Type;
};

TUniquePtr<FPythonConverter> PythonConverters::MakeForContainer(const FProperty* Property)
{
	const TSharedPtr<const FPythonContainerType> Type = FPythonContainerType::Of(Property);
	return Type ? MakeUnique<FPythonContainerConverter>(Type.ToSharedRef()) : TUniquePtr<FPythonConverter>();
}
