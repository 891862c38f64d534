#include "Velmora/JsonText.h"

#include "Serialization/JsonReader.h"
#include "Serialization/JsonSerializer.h"

#include <gtest/gtest.h>

TSharedPtr<FJsonObject> JsonObject(const char* Text)
{
	TSharedPtr<FJsonObject> Object;
	const TSharedRef<TJsonReader<>> Reader = TJsonReaderFactory<>::Create(FString(UTF8_TO_TCHAR(Text)));
	EXPECT_TRUE(FJsonSerializer::Deserialize(Reader, Object)) << Text;
	return Object;
}

TSharedPtr<FJsonValue> JsonValue(const char* Text)
{
	const std::string Wrapped = std::string("{ \"Value\": ") + Text + " }";
	const TSharedPtr<FJsonObject> Object = JsonObject(Wrapped.c_str());
	return Object.IsValid() ? Object->TryGetField(TEXT("Value")) : nullptr;
}
