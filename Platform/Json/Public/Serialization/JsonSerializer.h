#pragma once

#include "CoreMinimal.h"
#include "Dom/JsonObject.h"
#include "Dom/JsonValue.h"
#include "Serialization/JsonReader.h"
#include "Serialization/JsonWriter.h"

/** Turns JSON texts into values and back. */
class JSON_API FJsonSerializer
{
public:
	/**
	 * Reads a text whose root is an object, an array, or either.
	 *
	 * @return False, with the result left as it was, if the text is not valid or its root of another type. The reader's
	 *         GetErrorMessage() then tells why, and so does one Warning in LogJsonReader, with the line of the text.
	 */
	static bool Deserialize(const TSharedRef<TJsonReader<TCHAR>>& Reader, TSharedPtr<FJsonObject>& OutObject);
	static bool Deserialize(const TSharedRef<TJsonReader<TCHAR>>& Reader, TArray<TSharedPtr<FJsonValue>>& OutArray);
	static bool Deserialize(const TSharedRef<TJsonReader<TCHAR>>& Reader, TSharedPtr<FJsonValue>& OutValue);

	/**
	 * Writes an object or array; a null pointer in it is written as null.
	 *
	 * @param bCloseWriter  Whether nothing follows; the writer's target then receives the text.
	 * @return False if the writer was closed with something else still open.
	 */
	template <class CharType, class PrintPolicy>
	static bool Serialize(const TSharedRef<FJsonObject>& Object, const TSharedRef<TJsonWriter<CharType, PrintPolicy>>& Writer,
		bool bCloseWriter = true)
	{
		return Write(MakeShared<FJsonValueObject>(Object), *Writer, bCloseWriter);
	}

	template <class CharType, class PrintPolicy>
	static bool Serialize(const TArray<TSharedPtr<FJsonValue>>& Array,
		const TSharedRef<TJsonWriter<CharType, PrintPolicy>>& Writer, bool bCloseWriter = true)
	{
		return Write(MakeShared<FJsonValueArray>(Array), *Writer, bCloseWriter);
	}

private:
	/** A value to be written, under a name if it is a field; without a value, the end of a container. */
	struct FStep
	{
		const FString* Name;
		const FJsonValue* Value;
		EJson Ended = EJson::None;
	};

	/** Pushes the end of a container and, above it, its entries, the first on top. */
	static void PushFields(const FJsonObject* Object, TArray<FStep>& Steps);
	static void PushElements(const TArray<TSharedPtr<FJsonValue>>& Array, TArray<FStep>& Steps);

	/** Keeps its own stack, so that deep values are no deep calls. */
	template <class WriterType>
	static bool Write(const TSharedRef<FJsonValue>& Root, WriterType& Writer, bool bCloseWriter)
	{
		TArray<FStep> Steps;
		Steps.Add({nullptr, &Root.Get()});
		while (Steps.Num() > 0)
		{
			const FStep Step = Steps.Pop(false);
			if (Step.Ended != EJson::None)
			{
				Step.Ended == EJson::Object ? Writer.WriteObjectEnd() : Writer.WriteArrayEnd();
				continue;
			}

			const auto WriteValue = [&Writer, &Step](const auto& Value)
			{
				Step.Name ? Writer.WriteValue(*Step.Name, Value) : Writer.WriteValue(Value);
			};
			switch (Step.Value ? Step.Value->Type : EJson::Null)
			{
				case EJson::Object:
					Step.Name ? Writer.WriteObjectStart(*Step.Name) : Writer.WriteObjectStart();
					PushFields(Step.Value->AsObject().Get(), Steps);
					break;
				case EJson::Array:
					Step.Name ? Writer.WriteArrayStart(*Step.Name) : Writer.WriteArrayStart();
					PushElements(Step.Value->AsArray(), Steps);
					break;
				case EJson::String:
					WriteValue(Step.Value->AsString());
					break;
				case EJson::Number:
					WriteValue(Step.Value->AsNumber());
					break;
				case EJson::Boolean:
					WriteValue(Step.Value->AsBool());
					break;
				default:
					WriteValue(nullptr);
					break;
			}
		}
		return !bCloseWriter || Writer.Close();
	}
};
