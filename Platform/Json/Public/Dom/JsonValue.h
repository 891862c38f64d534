#pragma once

#include "CoreMinimal.h"
#include "Serialization/JsonTypes.h"

class FJsonObject;

/**
 * One value of a JSON text. Values convert: numbers, booleans and strings into each other, as told at the functions; null,
 * arrays and objects into nothing. To learn what the author wrote, look at Type.
 */
class JSON_API FJsonValue
{
public:
	virtual ~FJsonValue();

	FJsonValue(const FJsonValue&) = delete;
	FJsonValue& operator=(const FJsonValue&) = delete;

	// As...: where the value does not convert, one Error in LogJson and zero, an empty text, false, an empty array or object.

	double AsNumber() const;
	FString AsString() const;
	bool AsBool() const;
	const TArray<TSharedPtr<FJsonValue>>& AsArray() const;
	const TSharedPtr<FJsonObject>& AsObject() const;

	// TryGet...: where the value does not convert, false, and the result stays as it was.

	/** A boolean is 1 or 0; a string must be a number from beginning to end. */
	virtual bool TryGetNumber(double& OutNumber) const;
	/** As the double, to the nearest float. */
	bool TryGetNumber(float& OutNumber) const;

	/**
	 * Rounded, with halves away from zero; false outside the type's range. A string gives the integer that it begins with, or
	 * 0, and never fails.
	 */
	bool TryGetNumber(int8& OutNumber) const;
	bool TryGetNumber(int16& OutNumber) const;
	bool TryGetNumber(int32& OutNumber) const;
	bool TryGetNumber(int64& OutNumber) const;
	bool TryGetNumber(uint8& OutNumber) const;
	bool TryGetNumber(uint16& OutNumber) const;
	bool TryGetNumber(uint32& OutNumber) const;
	bool TryGetNumber(uint64& OutNumber) const;

	/** A number has as many digits as it needs, up to six behind the point; a boolean is "true" or "false". */
	virtual bool TryGetString(FString& OutString) const;

	/** A number is true unless it is 0; a string is true for "true", "yes", "on" in any case and for non-zero integers. */
	virtual bool TryGetBool(bool& OutBool) const;

	virtual bool TryGetArray(const TArray<TSharedPtr<FJsonValue>>*& OutArray) const;
	virtual bool TryGetObject(const TSharedPtr<FJsonObject>*& OutObject) const;

	bool IsNull() const { return Type == EJson::Null || Type == EJson::None; }

	const EJson Type;

protected:
	explicit FJsonValue(EJson InType)
		: Type(InType)
	{
	}

private:
	/** "Json Value of type 'Null' used as a 'String'." */
	void LogWrongUse(const TCHAR* UsedAs) const;
};

class JSON_API FJsonValueString : public FJsonValue
{
public:
	explicit FJsonValueString(const FString& InString);
	explicit FJsonValueString(FString&& InString);

	virtual bool TryGetNumber(double& OutNumber) const override;
	virtual bool TryGetString(FString& OutString) const override;
	virtual bool TryGetBool(bool& OutBool) const override;
	using FJsonValue::TryGetNumber;

protected:
	FString Value;
};

class JSON_API FJsonValueNumber : public FJsonValue
{
public:
	explicit FJsonValueNumber(double InNumber);

	virtual bool TryGetNumber(double& OutNumber) const override;
	virtual bool TryGetString(FString& OutString) const override;
	virtual bool TryGetBool(bool& OutBool) const override;
	using FJsonValue::TryGetNumber;

protected:
	double Value;
};

class JSON_API FJsonValueBoolean : public FJsonValue
{
public:
	explicit FJsonValueBoolean(bool InBool);

	virtual bool TryGetNumber(double& OutNumber) const override;
	virtual bool TryGetString(FString& OutString) const override;
	virtual bool TryGetBool(bool& OutBool) const override;
	using FJsonValue::TryGetNumber;

protected:
	bool Value;
};

/** Ends without recursion, however deep its values are nested. */
class JSON_API FJsonValueArray : public FJsonValue
{
public:
	explicit FJsonValueArray(const TArray<TSharedPtr<FJsonValue>>& InArray);
	explicit FJsonValueArray(TArray<TSharedPtr<FJsonValue>>&& InArray);
	virtual ~FJsonValueArray() override;

	virtual bool TryGetArray(const TArray<TSharedPtr<FJsonValue>>*& OutArray) const override;

protected:
	TArray<TSharedPtr<FJsonValue>> Value;
};

class JSON_API FJsonValueObject : public FJsonValue
{
public:
	explicit FJsonValueObject(TSharedPtr<FJsonObject> InObject);
	virtual ~FJsonValueObject() override;

	virtual bool TryGetObject(const TSharedPtr<FJsonObject>*& OutObject) const override;

protected:
	TSharedPtr<FJsonObject> Value;
};

class JSON_API FJsonValueNull : public FJsonValue
{
public:
	FJsonValueNull();
};
