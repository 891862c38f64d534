#include "UObject/UnrealType.h"

#include "Math/NumericNarrowing.h"
#include "Misc/CString.h"
#include "UObject/EnumText.h"
#include "UObject/PropertyText.h"
#include "UObject/UObjectGlobals.h"

#include <cerrno>
#include <cstdlib>
#include <limits>

namespace
{
template <typename T>
const TCHAR* NumericTypeName();

// clang-format off
template <> const TCHAR* NumericTypeName<int8>() { return TEXT("int8"); }
template <> const TCHAR* NumericTypeName<int16>() { return TEXT("int16"); }
template <> const TCHAR* NumericTypeName<int32>() { return TEXT("int32"); }
template <> const TCHAR* NumericTypeName<int64>() { return TEXT("int64"); }
template <> const TCHAR* NumericTypeName<uint8>() { return TEXT("uint8"); }
template <> const TCHAR* NumericTypeName<uint16>() { return TEXT("uint16"); }
template <> const TCHAR* NumericTypeName<uint32>() { return TEXT("uint32"); }
template <> const TCHAR* NumericTypeName<uint64>() { return TEXT("uint64"); }
template <> const TCHAR* NumericTypeName<float>() { return TEXT("float"); }
template <> const TCHAR* NumericTypeName<double>() { return TEXT("double"); }
// clang-format on

/** The whole word as a number of that type. */
template <typename T>
bool ParseNumber(const FString& Word, T& OutValue)
{
	const FTCHARToUTF8 Text(*Word);
	const ANSICHAR* const Begin = Text.Get();
	ANSICHAR* End = nullptr;
	if (!Begin || !*Begin)
	{
		return false;
	}
	errno = 0;
	if constexpr (std::is_floating_point_v<T>)
	{
		const double Value = std::strtod(Begin, &End);
		if (*End == 'f' && !End[1] && End != Begin)
		{
			++End;
		}
		OutValue = NarrowNumber<T>(Value);
		return !*End;
	}
	else if constexpr (std::is_signed_v<T>)
	{
		const long long Value = std::strtoll(Begin, &End, 10);
		OutValue = static_cast<T>(Value);
		return !*End && errno == 0 && Value >= std::numeric_limits<T>::min() && Value <= std::numeric_limits<T>::max();
	}
	else
	{
		const unsigned long long Value = std::strtoull(Begin, &End, 10);
		OutValue = static_cast<T>(Value);
		return !*End && errno == 0 && *Begin != '-' && Value <= std::numeric_limits<T>::max();
	}
}
}

FString FNumericProperty::GetNumericPropertyValueToString(const void* Data) const
{
	if (IsFloatingPoint())
	{
		return FString::Printf(TEXT("%f"), GetFloatingPointPropertyValue(Data));
	}
	return IsSigned() ? FString::Printf(TEXT("%lld"), GetSignedIntPropertyValue(Data))
					  : FString::Printf(TEXT("%llu"), GetUnsignedIntPropertyValue(Data));
}

template <typename T>
FString TProperty_Numeric<T>::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	return NumericTypeName<T>();
}

template <typename T>
void TProperty_Numeric<T>::SetFloatingPointPropertyValue(void* Data, double Value) const
{
	Base::SetPropertyValue(Data, NarrowNumber<T>(Value));
}

template <typename T>
bool TProperty_Numeric<T>::SetNumericPropertyValueFromString(void* Data, const TCHAR* Value) const
{
	T Number;
	if (!ParseNumber(FString(Value).TrimStartAndEnd(), Number))
	{
		return false;
	}
	Base::SetPropertyValue(Data, Number);
	return true;
}

template <typename T>
void TProperty_Numeric<T>::ExportTextItem(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent,
	int32 PortFlags, UObject* ExportRootScope) const
{
	ValueStr += this->GetNumericPropertyValueToString(PropertyValue);
}

template <typename T>
const TCHAR* TProperty_Numeric<T>::ImportValue(
	const TCHAR* Buffer, void* Data, int32 PortFlags, UObject* OwnerObject, FOutputDevice* ErrorText) const
{
	FTextReader Reader(Buffer);
	T Number;
	if (!ParseNumber(Reader.TakeWord(), Number))
	{
		return nullptr;
	}
	Base::SetPropertyValue(Data, Number);
	return Reader.Place();
}

template class TProperty_Numeric<int8>;
template class TProperty_Numeric<int16>;
template class TProperty_Numeric<int32>;
template class TProperty_Numeric<int64>;
template class TProperty_Numeric<uint8>;
template class TProperty_Numeric<uint16>;
template class TProperty_Numeric<uint32>;
template class TProperty_Numeric<uint64>;
template class TProperty_Numeric<float>;
template class TProperty_Numeric<double>;

FString FByteProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	return Enum ? TEXT("TEnumAsByte<") + Enum->CppType + TEXT(">") : FString(TEXT("uint8"));
}

void FByteProperty::ExportTextItem(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent,
	int32 PortFlags, UObject* ExportRootScope) const
{
	if (Enum)
	{
		ExportEnumText(ValueStr, *Enum, GetPropertyValue(PropertyValue));
		return;
	}
	TProperty_Numeric<uint8>::ExportTextItem(ValueStr, PropertyValue, DefaultValue, Parent, PortFlags, ExportRootScope);
}

const TCHAR* FByteProperty::ImportValue(
	const TCHAR* Buffer, void* Data, int32 PortFlags, UObject* OwnerObject, FOutputDevice* ErrorText) const
{
	return Enum ? ImportEnumText(Buffer, *Enum, *this, Data)
				: TProperty_Numeric<uint8>::ImportValue(Buffer, Data, PortFlags, OwnerObject, ErrorText);
}

bool FByteProperty::IsSameTypeAs(const FProperty& Other) const
{
	return Enum == static_cast<const FByteProperty&>(Other).Enum;
}

void FByteProperty::AddTypeReferences(FReferenceCollector& Collector) const
{
	Collector.HandleFixedReference(Enum);
}
