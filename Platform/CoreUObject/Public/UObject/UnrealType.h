#pragma once

#include "Containers/Array.h"
#include "Internationalization/Text.h"
#include "Templates/UniquePtr.h"
#include "UObject/Class.h"
#include "UObject/ContainerOps.h"
#include "UObject/Field.h"
#include "UObject/PropertyPortFlags.h"
#include "UObject/WeakObjectPtr.h"

class FOutputDevice;
class FReferenceCollector;

/**
 * A member, parameter or container element: its type, place and flags, and what can be done with a value of it.
 *
 * "Value" pointers point at the value itself, "Container" pointers at the structure or object that holds it.
 */
class COREUOBJECT_API FProperty : public FField
{
	DECLARE_FIELD(FProperty, FField, CASTCLASS_FProperty)

	/** More than 1 for a C array. */
	int32 ArrayDim = 1;
	int32 ElementSize = 0;
	EPropertyFlags PropertyFlags = CPF_None;

	FProperty(FFieldClass* InClass, FFieldVariant InOwner, const FName& InName, EObjectFlags InFlags);

	int32 GetSize() const { return ArrayDim * ElementSize; }
	int32 GetMinAlignment() const { return MinAlignment; }
	int32 GetOffset_ForInternal() const { return Offset_Internal; }
	int32 GetOffset_ForUFunction() const { return Offset_Internal; }
	/** Fixes the place in the container; UStruct::StaticLink leaves such a property where it is. */
	void SetOffset_Internal(int32 NewOffset) { Offset_Internal = NewOffset; }

	EPropertyFlags GetPropertyFlags() const { return PropertyFlags; }
	void SetPropertyFlags(EPropertyFlags NewFlags) { PropertyFlags |= NewFlags; }
	bool HasAnyPropertyFlags(EPropertyFlags FlagsToCheck) const { return (PropertyFlags & FlagsToCheck) != CPF_None; }
	bool HasAnyPropertyFlags(uint64 FlagsToCheck) const { return (PropertyFlags & FlagsToCheck) != 0; }

	template <typename ValueType>
	ValueType* ContainerPtrToValuePtr(void* ContainerPtr, int32 ArrayIndex = 0) const
	{
		return reinterpret_cast<ValueType*>(ContainerVoidPtrToValuePtr(ContainerPtr, ArrayIndex));
	}
	template <typename ValueType>
	const ValueType* ContainerPtrToValuePtr(const void* ContainerPtr, int32 ArrayIndex = 0) const
	{
		return reinterpret_cast<const ValueType*>(ContainerVoidPtrToValuePtr(const_cast<void*>(ContainerPtr), ArrayIndex));
	}
	template <typename ValueType>
	ValueType* ContainerPtrToValuePtr(UObject* ContainerPtr, int32 ArrayIndex = 0) const
	{
		return reinterpret_cast<ValueType*>(ContainerVoidPtrToValuePtr(ContainerPtr, ArrayIndex));
	}

	/** The type as C++ spells it, e.g. "int32", "TArray<FString>" (in ExtendedTypeText the part from "<" on), "AActor*". */
	virtual FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const = 0;
	bool SameType(const FProperty* Other) const;

	// All of ArrayDim values at once.
	void InitializeValue(void* Dest) const;
	void DestroyValue(void* Dest) const;
	/** Back to what InitializeValue makes. */
	void ClearValue(void* Data) const;
	void CopyCompleteValue(void* Dest, const void* Src) const;
	void InitializeValue_InContainer(void* Dest) const { InitializeValue(ContainerPtrToValuePtr<void>(Dest)); }
	void DestroyValue_InContainer(void* Dest) const { DestroyValue(ContainerPtrToValuePtr<void>(Dest)); }
	void ClearValue_InContainer(void* Dest) const { ClearValue(ContainerPtrToValuePtr<void>(Dest)); }
	void CopyCompleteValue_InContainer(void* Dest, const void* Src) const
	{
		CopyCompleteValue(ContainerPtrToValuePtr<void>(Dest), ContainerPtrToValuePtr<void>(Src));
	}
	bool Identical_InContainer(const void* A, const void* B, int32 ArrayIndex = 0, uint32 PortFlags = 0) const
	{
		return Identical(
			ContainerPtrToValuePtr<void>(A, ArrayIndex), B ? ContainerPtrToValuePtr<void>(B, ArrayIndex) : nullptr, PortFlags);
	}
	void AddReferencedObjects_InContainer(void* Container, FReferenceCollector& Collector) const;

	// One value.
	void CopySingleValue(void* Dest, const void* Src) const { CopyValue(Dest, Src); }
	/** A null B stands for the value that InitializeValue makes. */
	virtual bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const = 0;
	/** Types without a hash are fatal: see CPF_HasGetValueTypeHash. */
	uint32 GetValueTypeHash(const void* Src) const;
	/** True if a value may refer to an object strongly. */
	virtual bool ContainsObjectReference() const { return false; }
	/** Tells the collector about the classes, structures and enumerations that the property itself refers to. */
	virtual void AddTypeReferences(FReferenceCollector& Collector) const {}
	/** Tells the collector about the objects that one value refers to. */
	virtual void AddReferencedObjects(void* Value, FReferenceCollector& Collector) const {}

	/** Appends the value as text. With DefaultValue, a structure leaves out its members that are equal. */
	virtual void ExportTextItem(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent,
		int32 PortFlags, UObject* ExportRootScope = nullptr) const = 0;
	/** As ExportTextItem, unless Data equals Delta: then nothing is appended and the result is false. */
	bool ExportText_Direct(FString& ValueStr, const void* Data, const void* Delta, UObject* Parent, int32 PortFlags,
		UObject* ExportRootScope = nullptr) const;
	bool ExportText_InContainer(int32 Index, FString& ValueStr, const void* Data, const void* Delta, UObject* Parent,
		int32 PortFlags, UObject* ExportRootScope = nullptr) const;
	/**
	 * Reads what ExportTextItem writes into an initialised value.
	 *
	 * @param ErrorText  Takes the complaint; null for the log.
	 * @return The place behind the text that was read; null, with a complaint, if it is no such value.
	 */
	const TCHAR* ImportText(
		const TCHAR* Buffer, void* Data, int32 PortFlags, UObject* OwnerObject, FOutputDevice* ErrorText = nullptr) const;

protected:
	virtual void ConstructValue(void* Dest) const = 0;
	virtual void DestructValue(void* Dest) const = 0;
	virtual void CopyValue(void* Dest, const void* Src) const = 0;
	virtual uint32 HashValue(const void* Src) const = 0;
	virtual bool IsSameTypeAs(const FProperty& Other) const { return true; }
	virtual const TCHAR* ImportValue(
		const TCHAR* Buffer, void* Data, int32 PortFlags, UObject* OwnerObject, FOutputDevice* ErrorText) const = 0;

	int32 MinAlignment = 1;

private:
	friend class UStruct;
	friend class UFunction;

	void* ContainerVoidPtrToValuePtr(void* ContainerPtr, int32 ArrayIndex) const
	{
		check(ContainerPtr && ArrayIndex >= 0 && ArrayIndex < ArrayDim);
		return static_cast<uint8*>(ContainerPtr) + Offset_Internal + SIZE_T(ElementSize) * ArrayIndex;
	}

	int32 Offset_Internal = INDEX_NONE;
};

/** A property whose value is of one C++ type. */
template <typename InTCppType, class TInPropertyBaseClass>
class TProperty : public TInPropertyBaseClass
{
public:
	using TCppType = InTCppType;

	TProperty(FFieldClass* InClass, FFieldVariant InOwner, const FName& InName, EObjectFlags InFlags)
		: TInPropertyBaseClass(InClass, InOwner, InName, InFlags)
	{
		this->ElementSize = sizeof(TCppType);
		this->MinAlignment = alignof(TCppType);
		if constexpr (std::is_trivially_destructible_v<TCppType>)
		{
			this->PropertyFlags |= CPF_IsPlainOldData | CPF_NoDestructor | CPF_ZeroConstructor;
		}
	}

	static const TCppType& GetPropertyValue(const void* A) { return *static_cast<const TCppType*>(A); }
	static TCppType* GetPropertyValuePtr(void* A) { return static_cast<TCppType*>(A); }
	static const TCppType* GetPropertyValuePtr(const void* A) { return static_cast<const TCppType*>(A); }
	static void SetPropertyValue(void* A, const TCppType& Value) { *static_cast<TCppType*>(A) = Value; }
	const TCppType& GetPropertyValue_InContainer(const void* A, int32 ArrayIndex = 0) const
	{
		return *this->template ContainerPtrToValuePtr<TCppType>(A, ArrayIndex);
	}
	TCppType* GetPropertyValuePtr_InContainer(void* A, int32 ArrayIndex = 0) const
	{
		return this->template ContainerPtrToValuePtr<TCppType>(A, ArrayIndex);
	}
	void SetPropertyValue_InContainer(void* A, const TCppType& Value, int32 ArrayIndex = 0) const
	{
		*this->template ContainerPtrToValuePtr<TCppType>(A, ArrayIndex) = Value;
	}
	static TCppType GetDefaultPropertyValue() { return TCppType(); }

protected:
	void ConstructValue(void* Dest) const override { ::new (Dest) TCppType(); }
	void DestructValue(void* Dest) const override { static_cast<TCppType*>(Dest)->~TCppType(); }
	void CopyValue(void* Dest, const void* Src) const override { SetPropertyValue(Dest, GetPropertyValue(Src)); }
};

class COREUOBJECT_API FNumericProperty : public FProperty
{
	DECLARE_FIELD(FNumericProperty, FProperty, CASTCLASS_FNumericProperty)

	using FProperty::FProperty;

	virtual bool IsFloatingPoint() const = 0;
	virtual bool IsInteger() const = 0;
	virtual bool IsSigned() const = 0;
	bool IsEnum() const { return GetIntPropertyEnum() != nullptr; }
	virtual UEnum* GetIntPropertyEnum() const { return nullptr; }

	/** Conversions cut an integer to its low bits; a floating-point value goes to the nearest end of the range and NaN to 0. */
	virtual void SetIntPropertyValue(void* Data, uint64 Value) const = 0;
	virtual void SetIntPropertyValue(void* Data, int64 Value) const = 0;
	virtual void SetFloatingPointPropertyValue(void* Data, double Value) const = 0;
	virtual int64 GetSignedIntPropertyValue(const void* Data) const = 0;
	virtual uint64 GetUnsignedIntPropertyValue(const void* Data) const = 0;
	virtual double GetFloatingPointPropertyValue(const void* Data) const = 0;
	FString GetNumericPropertyValueToString(const void* Data) const;
	/** False for a text that is no number or does not fit; the value is left alone then. */
	virtual bool SetNumericPropertyValueFromString(void* Data, const TCHAR* Value) const = 0;
};

template <typename InTCppType>
class TProperty_Numeric : public TProperty<InTCppType, FNumericProperty>
{
public:
	using Base = TProperty<InTCppType, FNumericProperty>;

	TProperty_Numeric(FFieldClass* InClass, FFieldVariant InOwner, const FName& InName, EObjectFlags InFlags)
		: Base(InClass, InOwner, InName, InFlags)
	{
		this->PropertyFlags |= CPF_HasGetValueTypeHash;
	}

	FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	bool IsFloatingPoint() const override { return std::is_floating_point_v<InTCppType>; }
	bool IsInteger() const override { return std::is_integral_v<InTCppType>; }
	bool IsSigned() const override { return std::is_signed_v<InTCppType>; }
	void SetIntPropertyValue(void* Data, uint64 Value) const override
	{
		Base::SetPropertyValue(Data, static_cast<InTCppType>(Value));
	}
	void SetIntPropertyValue(void* Data, int64 Value) const override
	{
		Base::SetPropertyValue(Data, static_cast<InTCppType>(Value));
	}
	void SetFloatingPointPropertyValue(void* Data, double Value) const override;
	int64 GetSignedIntPropertyValue(const void* Data) const override { return static_cast<int64>(Base::GetPropertyValue(Data)); }
	uint64 GetUnsignedIntPropertyValue(const void* Data) const override
	{
		return static_cast<uint64>(Base::GetPropertyValue(Data));
	}
	double GetFloatingPointPropertyValue(const void* Data) const override
	{
		return static_cast<double>(Base::GetPropertyValue(Data));
	}
	bool SetNumericPropertyValueFromString(void* Data, const TCHAR* Value) const override;
	bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override
	{
		return Base::GetPropertyValue(A) == (B ? Base::GetPropertyValue(B) : InTCppType(0));
	}
	void ExportTextItem(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent, int32 PortFlags,
		UObject* ExportRootScope = nullptr) const override;

protected:
	uint32 HashValue(const void* Src) const override { return GetTypeHash(Base::GetPropertyValue(Src)); }
	const TCHAR* ImportValue(
		const TCHAR* Buffer, void* Data, int32 PortFlags, UObject* OwnerObject, FOutputDevice* ErrorText) const override;
};

#define DECLARE_NUMERIC_PROPERTY(TClass, TCppType) \
	extern template class COREUOBJECT_API TProperty_Numeric<TCppType>; \
	class COREUOBJECT_API TClass final : public TProperty_Numeric<TCppType> \
	{ \
		DECLARE_FIELD(TClass, FNumericProperty, CASTCLASS_##TClass) \
		TClass(FFieldVariant InOwner, const FName& InName, EObjectFlags InFlags = RF_NoFlags) \
			: TProperty_Numeric<TCppType>(StaticClass(), InOwner, InName, InFlags) \
		{ \
		} \
	};

DECLARE_NUMERIC_PROPERTY(FInt8Property, int8)
DECLARE_NUMERIC_PROPERTY(FInt16Property, int16)
DECLARE_NUMERIC_PROPERTY(FIntProperty, int32)
DECLARE_NUMERIC_PROPERTY(FInt64Property, int64)
DECLARE_NUMERIC_PROPERTY(FUInt16Property, uint16)
DECLARE_NUMERIC_PROPERTY(FUInt32Property, uint32)
DECLARE_NUMERIC_PROPERTY(FUInt64Property, uint64)
DECLARE_NUMERIC_PROPERTY(FFloatProperty, float)
DECLARE_NUMERIC_PROPERTY(FDoubleProperty, double)

extern template class COREUOBJECT_API TProperty_Numeric<uint8>;

/** A byte, or with Enum an enumeration in a byte (TEnumAsByte). */
class COREUOBJECT_API FByteProperty final : public TProperty_Numeric<uint8>
{
	DECLARE_FIELD(FByteProperty, FNumericProperty, CASTCLASS_FByteProperty)

	FByteProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InFlags = RF_NoFlags)
		: TProperty_Numeric<uint8>(StaticClass(), InOwner, InName, InFlags)
	{
	}

	UEnum* Enum = nullptr;

	UEnum* GetIntPropertyEnum() const override { return Enum; }
	FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	void ExportTextItem(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent, int32 PortFlags,
		UObject* ExportRootScope = nullptr) const override;
	void AddTypeReferences(FReferenceCollector& Collector) const override;

protected:
	bool IsSameTypeAs(const FProperty& Other) const override;
	const TCHAR* ImportValue(
		const TCHAR* Buffer, void* Data, int32 PortFlags, UObject* OwnerObject, FOutputDevice* ErrorText) const override;
};

/** An enum class. Its values lie in an integer property of the enum's underlying type. */
class COREUOBJECT_API FEnumProperty final : public FProperty
{
	DECLARE_FIELD(FEnumProperty, FProperty, CASTCLASS_FEnumProperty)

	FEnumProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InFlags = RF_NoFlags);
	~FEnumProperty() override;

	/** Sets the underlying integer property, which is owned from here on. */
	void AddCppProperty(FProperty* Property);
	void SetEnum(UEnum* InEnum) { Enum = InEnum; }
	UEnum* GetEnum() const { return Enum; }
	FNumericProperty* GetUnderlyingProperty() const { return UnderlyingProp; }

	FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override;
	void ExportTextItem(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent, int32 PortFlags,
		UObject* ExportRootScope = nullptr) const override;
	void AddTypeReferences(FReferenceCollector& Collector) const override;

protected:
	void ConstructValue(void* Dest) const override;
	void DestructValue(void* Dest) const override {}
	void CopyValue(void* Dest, const void* Src) const override;
	uint32 HashValue(const void* Src) const override;
	bool IsSameTypeAs(const FProperty& Other) const override;
	const TCHAR* ImportValue(
		const TCHAR* Buffer, void* Data, int32 PortFlags, UObject* OwnerObject, FOutputDevice* ErrorText) const override;

private:
	FNumericProperty* UnderlyingProp = nullptr;
	UEnum* Enum = nullptr;
};

/** A bool, or one bit of an integer. */
class COREUOBJECT_API FBoolProperty final : public FProperty
{
	DECLARE_FIELD(FBoolProperty, FProperty, CASTCLASS_FBoolProperty)

	using TCppType = bool;

	/** A native bool until SetBoolSize says otherwise. */
	FBoolProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InFlags = RF_NoFlags);

	/** @param InBitMask  The bit within an integer of InSize bytes, for bitfields. */
	void SetBoolSize(uint32 InSize, bool bIsNativeBool = false, uint32 InBitMask = 0);
	/** 0xFF means a bool of its own, anything else a bit beside others. */
	bool IsNativeBool() const { return FieldMask == 0xff; }
	uint8 GetFieldSize() const { return FieldSize; }
	uint8 GetByteOffset() const { return ByteOffset; }
	uint8 GetByteMask() const { return ByteMask; }
	uint8 GetFieldMask() const { return FieldMask; }

	bool GetPropertyValue(const void* A) const { return (static_cast<const uint8*>(A)[ByteOffset] & FieldMask) != 0; }
	void SetPropertyValue(void* A, bool Value) const
	{
		uint8& Byte = static_cast<uint8*>(A)[ByteOffset];
		Byte = (Byte & ~FieldMask) | (Value ? ByteMask : 0);
	}
	bool GetPropertyValue_InContainer(const void* A, int32 ArrayIndex = 0) const
	{
		return GetPropertyValue(ContainerPtrToValuePtr<void>(A, ArrayIndex));
	}
	void SetPropertyValue_InContainer(void* A, bool Value, int32 ArrayIndex = 0) const
	{
		SetPropertyValue(ContainerPtrToValuePtr<void>(A, ArrayIndex), Value);
	}

	FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override;
	void ExportTextItem(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent, int32 PortFlags,
		UObject* ExportRootScope = nullptr) const override;

protected:
	void ConstructValue(void* Dest) const override { SetPropertyValue(Dest, false); }
	void DestructValue(void* Dest) const override {}
	void CopyValue(void* Dest, const void* Src) const override { SetPropertyValue(Dest, GetPropertyValue(Src)); }
	uint32 HashValue(const void* Src) const override { return GetTypeHash(GetPropertyValue(Src)); }
	const TCHAR* ImportValue(
		const TCHAR* Buffer, void* Data, int32 PortFlags, UObject* OwnerObject, FOutputDevice* ErrorText) const override;

private:
	uint8 FieldSize = 1;
	uint8 ByteOffset = 0;
	uint8 ByteMask = 1;
	uint8 FieldMask = 0xff;
};

#define DECLARE_SIMPLE_PROPERTY(TClass, TCppType) \
	class COREUOBJECT_API TClass final : public TProperty<TCppType, FProperty> \
	{ \
		DECLARE_FIELD(TClass, FProperty, CASTCLASS_##TClass) \
		TClass(FFieldVariant InOwner, const FName& InName, EObjectFlags InFlags = RF_NoFlags); \
		FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override; \
		bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override; \
		void ExportTextItem(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent, \
			int32 PortFlags, UObject* ExportRootScope = nullptr) const override; \
\
	protected: \
		uint32 HashValue(const void* Src) const override; \
		const TCHAR* ImportValue( \
			const TCHAR* Buffer, void* Data, int32 PortFlags, UObject* OwnerObject, FOutputDevice* ErrorText) const override; \
	};

/** Texts that differ in case only are identical, as they are to FString's == and as keys. */
DECLARE_SIMPLE_PROPERTY(FStrProperty, FString)
DECLARE_SIMPLE_PROPERTY(FNameProperty, FName)
/** Has no hash. */
DECLARE_SIMPLE_PROPERTY(FTextProperty, FText)

/** Any reference to an object. */
class COREUOBJECT_API FObjectPropertyBase : public FProperty
{
	DECLARE_FIELD(FObjectPropertyBase, FProperty, CASTCLASS_FObjectPropertyBase)

	FObjectPropertyBase(FFieldClass* InClass, FFieldVariant InOwner, const FName& InName, EObjectFlags InFlags);

	UClass* PropertyClass = nullptr;

	void SetPropertyClass(UClass* InPropertyClass) { PropertyClass = InPropertyClass; }
	virtual UObject* GetObjectPropertyValue(const void* PropertyValueAddress) const = 0;
	virtual void SetObjectPropertyValue(void* PropertyValueAddress, UObject* Value) const = 0;
	UObject* GetObjectPropertyValue_InContainer(const void* ContainerAddress, int32 ArrayIndex = 0) const
	{
		return GetObjectPropertyValue(ContainerPtrToValuePtr<void>(ContainerAddress, ArrayIndex));
	}
	void SetObjectPropertyValue_InContainer(void* ContainerAddress, UObject* Value, int32 ArrayIndex = 0) const
	{
		SetObjectPropertyValue(ContainerPtrToValuePtr<void>(ContainerAddress, ArrayIndex), Value);
	}

	bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override;
	void ExportTextItem(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent, int32 PortFlags,
		UObject* ExportRootScope = nullptr) const override;
	void AddTypeReferences(FReferenceCollector& Collector) const override;

protected:
	uint32 HashValue(const void* Src) const override;
	bool IsSameTypeAs(const FProperty& Other) const override;
	const TCHAR* ImportValue(
		const TCHAR* Buffer, void* Data, int32 PortFlags, UObject* OwnerObject, FOutputDevice* ErrorText) const override;
	/** Whether an imported object may be stored. */
	virtual bool AcceptsObject(const UObject* Object) const;
};

/** A reference that keeps its object alive. */
class COREUOBJECT_API FObjectProperty : public TProperty<UObject*, FObjectPropertyBase>
{
	DECLARE_FIELD(FObjectProperty, FObjectPropertyBase, CASTCLASS_FObjectProperty)

	FObjectProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InFlags = RF_NoFlags);

	UObject* GetObjectPropertyValue(const void* PropertyValueAddress) const override
	{
		return GetPropertyValue(PropertyValueAddress);
	}
	void SetObjectPropertyValue(void* PropertyValueAddress, UObject* Value) const override
	{
		SetPropertyValue(PropertyValueAddress, Value);
	}
	FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	bool ContainsObjectReference() const override { return true; }
	void AddReferencedObjects(void* Value, FReferenceCollector& Collector) const override;

protected:
	FObjectProperty(FFieldClass* InClass, FFieldVariant InOwner, const FName& InName, EObjectFlags InFlags);
};

/** UClass* or TSubclassOf; MetaClass is what the class must derive from. */
class COREUOBJECT_API FClassProperty final : public FObjectProperty
{
	DECLARE_FIELD(FClassProperty, FObjectProperty, CASTCLASS_FClassProperty)

	FClassProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InFlags = RF_NoFlags);

	UClass* MetaClass = nullptr;

	void SetMetaClass(UClass* NewMetaClass) { MetaClass = NewMetaClass; }
	FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	void AddTypeReferences(FReferenceCollector& Collector) const override;

protected:
	bool IsSameTypeAs(const FProperty& Other) const override;
	bool AcceptsObject(const UObject* Object) const override;
};

/** A reference that turns null when its object goes. */
class COREUOBJECT_API FWeakObjectProperty final : public TProperty<FWeakObjectPtr, FObjectPropertyBase>
{
	DECLARE_FIELD(FWeakObjectProperty, FObjectPropertyBase, CASTCLASS_FWeakObjectProperty)

	FWeakObjectProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InFlags = RF_NoFlags);

	UObject* GetObjectPropertyValue(const void* PropertyValueAddress) const override
	{
		return GetPropertyValue(PropertyValueAddress).Get();
	}
	void SetObjectPropertyValue(void* PropertyValueAddress, UObject* Value) const override
	{
		SetPropertyValue(PropertyValueAddress, FWeakObjectPtr(Value));
	}
	FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
};

class COREUOBJECT_API FStructProperty final : public FProperty
{
	DECLARE_FIELD(FStructProperty, FProperty, CASTCLASS_FStructProperty)

	FStructProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InFlags = RF_NoFlags);

	/** Set it with SetStruct, which takes over the size. */
	UScriptStruct* Struct = nullptr;

	void SetStruct(UScriptStruct* InStruct);
	FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override;
	bool ContainsObjectReference() const override;
	void AddReferencedObjects(void* Value, FReferenceCollector& Collector) const override;
	void ExportTextItem(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent, int32 PortFlags,
		UObject* ExportRootScope = nullptr) const override;
	void AddTypeReferences(FReferenceCollector& Collector) const override;

protected:
	void ConstructValue(void* Dest) const override;
	void DestructValue(void* Dest) const override;
	void CopyValue(void* Dest, const void* Src) const override;
	uint32 HashValue(const void* Src) const override;
	bool IsSameTypeAs(const FProperty& Other) const override;
	const TCHAR* ImportValue(
		const TCHAR* Buffer, void* Data, int32 PortFlags, UObject* OwnerObject, FOutputDevice* ErrorText) const override;
};

/** TArray. Made by hand, its values are laid out as those of a TArray of the inner type. */
class COREUOBJECT_API FArrayProperty final : public FProperty
{
	DECLARE_FIELD(FArrayProperty, FProperty, CASTCLASS_FArrayProperty)

	FArrayProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InFlags = RF_NoFlags);
	~FArrayProperty() override;

	FProperty* Inner = nullptr;

	/** Sets Inner, which is owned from here on. */
	void AddCppProperty(FProperty* Property);
	/** For a native array: what its C++ type does. Without it the inner property does the work. */
	void SetOps(const FArrayOps& InOps);
	const FArrayOps& GetOps() const { return *Ops; }

	FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override;
	bool ContainsObjectReference() const override;
	void AddReferencedObjects(void* Value, FReferenceCollector& Collector) const override;
	void ExportTextItem(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent, int32 PortFlags,
		UObject* ExportRootScope = nullptr) const override;
	void AddTypeReferences(FReferenceCollector& Collector) const override;

protected:
	void ConstructValue(void* Dest) const override { Ops->Construct(Dest); }
	void DestructValue(void* Dest) const override { Ops->Destruct(Dest); }
	void CopyValue(void* Dest, const void* Src) const override;
	uint32 HashValue(const void* Src) const override;
	bool IsSameTypeAs(const FProperty& Other) const override;
	const TCHAR* ImportValue(
		const TCHAR* Buffer, void* Data, int32 PortFlags, UObject* OwnerObject, FOutputDevice* ErrorText) const override;

private:
	const FArrayOps* Ops = nullptr;
	TUniquePtr<FArrayOps> OwnOps;
};

/** TSet. The values of one made by hand are no TSet: only its helper reads them. */
class COREUOBJECT_API FSetProperty final : public FProperty
{
	DECLARE_FIELD(FSetProperty, FProperty, CASTCLASS_FSetProperty)

	FSetProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InFlags = RF_NoFlags);
	~FSetProperty() override;

	FProperty* ElementProp = nullptr;

	/** Sets ElementProp, which is owned from here on. */
	void AddCppProperty(FProperty* Property);
	void SetOps(const FSetOps& InOps);
	const FSetOps& GetOps() const { return *Ops; }
	/** Whether values are a TSet of C++. Native and made values are of different types and never copied into each other. */
	bool IsNative() const { return Ops != OwnOps.Get(); }

	FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override;
	bool ContainsObjectReference() const override;
	void AddReferencedObjects(void* Value, FReferenceCollector& Collector) const override;
	void ExportTextItem(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent, int32 PortFlags,
		UObject* ExportRootScope = nullptr) const override;
	void AddTypeReferences(FReferenceCollector& Collector) const override;

protected:
	void ConstructValue(void* Dest) const override { Ops->Construct(Dest); }
	void DestructValue(void* Dest) const override { Ops->Destruct(Dest); }
	void CopyValue(void* Dest, const void* Src) const override;
	uint32 HashValue(const void* Src) const override;
	bool IsSameTypeAs(const FProperty& Other) const override;
	const TCHAR* ImportValue(
		const TCHAR* Buffer, void* Data, int32 PortFlags, UObject* OwnerObject, FOutputDevice* ErrorText) const override;

private:
	const FSetOps* Ops = nullptr;
	TUniquePtr<FSetOps> OwnOps;
};

/** TMap. The values of one made by hand are no TMap: only its helper reads them. */
class COREUOBJECT_API FMapProperty final : public FProperty
{
	DECLARE_FIELD(FMapProperty, FProperty, CASTCLASS_FMapProperty)

	FMapProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InFlags = RF_NoFlags);
	~FMapProperty() override;

	FProperty* KeyProp = nullptr;
	FProperty* ValueProp = nullptr;

	/** Sets KeyProp, at the second call ValueProp. Both are owned from here on. */
	void AddCppProperty(FProperty* Property);
	void SetOps(const FMapOps& InOps);
	const FMapOps& GetOps() const { return *Ops; }
	/** Whether values are a TMap of C++. Native and made values are of different types and never copied into each other. */
	bool IsNative() const { return Ops != OwnOps.Get(); }
	FProperty* GetKeyProperty() const { return KeyProp; }
	FProperty* GetValueProperty() const { return ValueProp; }

	FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override;
	bool ContainsObjectReference() const override;
	void AddReferencedObjects(void* Value, FReferenceCollector& Collector) const override;
	void ExportTextItem(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent, int32 PortFlags,
		UObject* ExportRootScope = nullptr) const override;
	void AddTypeReferences(FReferenceCollector& Collector) const override;

protected:
	void ConstructValue(void* Dest) const override { Ops->Construct(Dest); }
	void DestructValue(void* Dest) const override { Ops->Destruct(Dest); }
	void CopyValue(void* Dest, const void* Src) const override;
	uint32 HashValue(const void* Src) const override;
	bool IsSameTypeAs(const FProperty& Other) const override;
	const TCHAR* ImportValue(
		const TCHAR* Buffer, void* Data, int32 PortFlags, UObject* OwnerObject, FOutputDevice* ErrorText) const override;

private:
	const FMapOps* Ops = nullptr;
	TUniquePtr<FMapOps> OwnOps;
};

// The rest of what goes under this name.
#include "UObject/FieldIterator.h"
#include "UObject/PropertyChangedEvent.h"
#include "UObject/ScriptContainerHelpers.h"
