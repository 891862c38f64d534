#pragma once

#include "Containers/EnumAsByte.h"
#include "Templates/SubclassOf.h"
#include "UObject/ObjectPtr.h"
#include "UObject/UnrealType.h"
#include "UObject/WeakObjectPtr.h"

#include <type_traits>

namespace UECodeGen
{
/** The text form of a structure, where it has one of its own; specialise it next to the structure's description. */
template <typename T>
struct TStructText
{
	static constexpr void (*Export)(FString& ValueStr, const void* Src) = nullptr;
	static constexpr bool (*Import)(const TCHAR*& Buffer, void* Dest) = nullptr;
};

/** Makes the property for a C++ type: TPropertyOf<TArray<FString>>::New(Owner, Name). What has no rule of its own is a structure. */
template <typename T, typename Enable = void>
struct TPropertyOf
{
	static FProperty* New(FFieldVariant Owner, const FName& Name)
	{
		FStructProperty* const Property = new FStructProperty(Owner, Name);
		Property->SetStruct(TBaseStructure<T>::Get());
		return Property;
	}
};

template <typename T>
FProperty* NewProperty(FFieldVariant Owner, const FName& Name)
{
	return TPropertyOf<T>::New(Owner, Name);
}

template <typename TPropertyClass>
struct TPlainProperty
{
	static FProperty* New(FFieldVariant Owner, const FName& Name) { return new TPropertyClass(Owner, Name); }
};

// clang-format off
template <> struct TPropertyOf<bool> : TPlainProperty<FBoolProperty> {};
template <> struct TPropertyOf<uint8> : TPlainProperty<FByteProperty> {};
template <> struct TPropertyOf<uint16> : TPlainProperty<FUInt16Property> {};
template <> struct TPropertyOf<uint32> : TPlainProperty<FUInt32Property> {};
template <> struct TPropertyOf<uint64> : TPlainProperty<FUInt64Property> {};
template <> struct TPropertyOf<int8> : TPlainProperty<FInt8Property> {};
template <> struct TPropertyOf<int16> : TPlainProperty<FInt16Property> {};
template <> struct TPropertyOf<int32> : TPlainProperty<FIntProperty> {};
template <> struct TPropertyOf<int64> : TPlainProperty<FInt64Property> {};
template <> struct TPropertyOf<float> : TPlainProperty<FFloatProperty> {};
template <> struct TPropertyOf<double> : TPlainProperty<FDoubleProperty> {};
template <> struct TPropertyOf<FString> : TPlainProperty<FStrProperty> {};
template <> struct TPropertyOf<FName> : TPlainProperty<FNameProperty> {};
template <> struct TPropertyOf<FText> : TPlainProperty<FTextProperty> {};
// clang-format on

template <typename T>
struct TPropertyOf<T*, std::enable_if_t<!std::is_same_v<std::remove_const_t<T>, UClass>>>
{
	static FProperty* New(FFieldVariant Owner, const FName& Name)
	{
		FObjectProperty* const Property = new FObjectProperty(Owner, Name);
		Property->SetPropertyClass(std::remove_const_t<T>::StaticClass());
		return Property;
	}
};

template <typename T>
struct TPropertyOf<TObjectPtr<T>> : TPropertyOf<T*>
{
};

inline FProperty* NewClassProperty(FFieldVariant Owner, const FName& Name, UClass* MetaClass, EPropertyFlags Flags)
{
	FClassProperty* const Property = new FClassProperty(Owner, Name);
	Property->SetMetaClass(MetaClass);
	Property->SetPropertyFlags(Flags);
	return Property;
}

template <typename T>
struct TPropertyOf<T*, std::enable_if_t<std::is_same_v<std::remove_const_t<T>, UClass>>>
{
	static FProperty* New(FFieldVariant Owner, const FName& Name)
	{
		return NewClassProperty(Owner, Name, UObject::StaticClass(), CPF_None);
	}
};

template <typename T>
struct TPropertyOf<TSubclassOf<T>>
{
	static FProperty* New(FFieldVariant Owner, const FName& Name)
	{
		return NewClassProperty(Owner, Name, T::StaticClass(), CPF_UObjectWrapper);
	}
};

template <typename T>
struct TPropertyOf<TWeakObjectPtr<T>>
{
	static FProperty* New(FFieldVariant Owner, const FName& Name)
	{
		FWeakObjectProperty* const Property = new FWeakObjectProperty(Owner, Name);
		Property->SetPropertyClass(std::remove_const_t<T>::StaticClass());
		Property->SetPropertyFlags(CPF_UObjectWrapper);
		return Property;
	}
};

template <typename T>
struct TPropertyOf<T, std::enable_if_t<std::is_enum_v<T>>>
{
	static FProperty* New(FFieldVariant Owner, const FName& Name)
	{
		FEnumProperty* const Property = new FEnumProperty(Owner, Name);
		Property->SetEnum(StaticEnum<T>());
		Property->AddCppProperty(NewProperty<std::underlying_type_t<T>>(Property, TEXT("UnderlyingType")));
		return Property;
	}
};

template <typename T>
struct TPropertyOf<TEnumAsByte<T>>
{
	static FProperty* New(FFieldVariant Owner, const FName& Name)
	{
		FByteProperty* const Property = new FByteProperty(Owner, Name);
		Property->Enum = StaticEnum<T>();
		return Property;
	}
};

template <typename T>
struct TPropertyOf<TArray<T>>
{
	static FProperty* New(FFieldVariant Owner, const FName& Name)
	{
		FArrayProperty* const Property = new FArrayProperty(Owner, Name);
		Property->AddCppProperty(NewProperty<T>(Property, Name));
		Property->SetOps(TArrayOps<T>::Get());
		return Property;
	}
};

template <typename T>
struct TPropertyOf<TSet<T>>
{
	static FProperty* New(FFieldVariant Owner, const FName& Name)
	{
		FSetProperty* const Property = new FSetProperty(Owner, Name);
		Property->AddCppProperty(NewProperty<T>(Property, Name));
		Property->SetOps(TSetOps<T>::Get());
		return Property;
	}
};

template <typename K, typename V>
struct TPropertyOf<TMap<K, V>>
{
	static FProperty* New(FFieldVariant Owner, const FName& Name)
	{
		FMapProperty* const Property = new FMapProperty(Owner, Name);
		Property->AddCppProperty(NewProperty<K>(Property, Name));
		Property->AddCppProperty(NewProperty<V>(Property, Name));
		Property->SetOps(TMapOps<K, V>::Get());
		return Property;
	}
};
}
