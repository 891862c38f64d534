#pragma once

#include "CoreMinimal.h"
#include "Dom/JsonValue.h"
#include "Serialization/JsonTypes.h"

/**
 * Named values, in the order in which they were added. Names are found in any case of letters; a name that comes again keeps
 * its place and takes the later value.
 *
 * HasField and the TryGet functions are silent, and leave their result as it was where they find nothing that converts (see
 * FJsonValue). The plain getters write Warnings in LogJson, "Field %s was not found." and "Field %s is of the wrong type.",
 * and go on with null, which converts to nothing, adds an Error and yields an empty value.
 */
class JSON_API FJsonObject
{
public:
	FJsonObject();
	FJsonObject(const FJsonObject&);
	FJsonObject(FJsonObject&&);
	FJsonObject& operator=(const FJsonObject&);
	FJsonObject& operator=(FJsonObject&&);

	/** Ends without recursion, however deep its values are nested. */
	~FJsonObject();

	TMap<FString, TSharedPtr<FJsonValue>> Values;

	bool HasField(const FString& FieldName) const;

	template <EJson JsonType>
	bool HasTypedField(const FString& FieldName) const
	{
		return HasFieldOfType(FieldName, JsonType);
	}

	template <EJson JsonType>
	TSharedPtr<FJsonValue> GetField(const FString& FieldName) const
	{
		return GetFieldOfType(FieldName, JsonType);
	}

	/** The value, or null. */
	TSharedPtr<FJsonValue> TryGetField(const FString& FieldName) const;

	void SetField(const FString& FieldName, const TSharedPtr<FJsonValue>& Value);
	void RemoveField(const FString& FieldName);

	double GetNumberField(const FString& FieldName) const;
	/** The number with its fraction cut off; what is out of range becomes the nearest end of it. */
	int32 GetIntegerField(const FString& FieldName) const;
	bool TryGetNumberField(const FString& FieldName, double& OutNumber) const;
	bool TryGetNumberField(const FString& FieldName, float& OutNumber) const;
	bool TryGetNumberField(const FString& FieldName, int8& OutNumber) const;
	bool TryGetNumberField(const FString& FieldName, int16& OutNumber) const;
	bool TryGetNumberField(const FString& FieldName, int32& OutNumber) const;
	bool TryGetNumberField(const FString& FieldName, int64& OutNumber) const;
	bool TryGetNumberField(const FString& FieldName, uint8& OutNumber) const;
	bool TryGetNumberField(const FString& FieldName, uint16& OutNumber) const;
	bool TryGetNumberField(const FString& FieldName, uint32& OutNumber) const;
	bool TryGetNumberField(const FString& FieldName, uint64& OutNumber) const;
	void SetNumberField(const FString& FieldName, double Number);

	FString GetStringField(const FString& FieldName) const;
	bool TryGetStringField(const FString& FieldName, FString& OutString) const;
	/** False, with the result empty, if the field is no array; false with what came before if an element is no string. */
	bool TryGetStringArrayField(const FString& FieldName, TArray<FString>& OutArray) const;
	void SetStringField(const FString& FieldName, const FString& StringValue);

	bool GetBoolField(const FString& FieldName) const;
	bool TryGetBoolField(const FString& FieldName, bool& OutBool) const;
	void SetBoolField(const FString& FieldName, bool InValue);

	const TArray<TSharedPtr<FJsonValue>>& GetArrayField(const FString& FieldName) const;
	bool TryGetArrayField(const FString& FieldName, const TArray<TSharedPtr<FJsonValue>>*& OutArray) const;
	void SetArrayField(const FString& FieldName, const TArray<TSharedPtr<FJsonValue>>& Array);

	const TSharedPtr<FJsonObject>& GetObjectField(const FString& FieldName) const;
	bool TryGetObjectField(const FString& FieldName, const TSharedPtr<FJsonObject>*& OutObject) const;
	void SetObjectField(const FString& FieldName, const TSharedPtr<FJsonObject>& JsonObject);

private:
	bool HasFieldOfType(const FString& FieldName, EJson JsonType) const;
	TSharedPtr<FJsonValue> GetFieldOfType(const FString& FieldName, EJson JsonType) const;
	const FJsonValue* FindField(const FString& FieldName) const;

	template <typename OutType>
	bool TryGetNumberOf(const FString& FieldName, OutType& OutNumber) const;
};
