#pragma once

#include "CoreMinimal.h"
#include "Dom/JsonObject.h"

/** The JSON value of a text, e.g. R"([1, 2])". Fails the test and gives null if the text is no JSON. */
TSharedPtr<FJsonValue> JsonValue(const char* Text);

/** The JSON object of a text, with its fields in the order of the text. */
TSharedPtr<FJsonObject> JsonObject(const char* Text);
