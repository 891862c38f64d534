#include "Velmora/ValueParsers.h"

#include "KestrixLog.h"
#include "Misc/DefaultValueHelper.h"
#include "Velmora/KeyTables.h"

float ToFloat(double Number)
{
	return static_cast<float>(FMath::Clamp<double>(Number, -MAX_flt, MAX_flt));
}

int32 ToInt32(double Number)
{
	return static_cast<int32>(FMath::Clamp<double>(Number, MIN_int32, MAX_int32));
}

namespace
{
using FJsonArray = TArray<TSharedPtr<FJsonValue>>;

/** A word of a description and the entry of a Slate enumeration that it stands for. */
template <typename T>
struct TSpelling
{
	const TCHAR* Text;
	T Value;
};

template <typename T, int32 Num>
bool FindSpelling(const FString& Text, const TSpelling<T> (&Spellings)[Num], T& Out)
{
	for (const TSpelling<T>& Spelling : Spellings)
	{
		if (IsSameKey(Text, Spelling.Text))
		{
			Out = Spelling.Value;
			return true;
		}
	}
	return false;
}

template <typename T, int32 Num>
bool ParseSpelling(const FString& Text, const TSpelling<T> (&Spellings)[Num], const TCHAR* Message, T& Out)
{
	if (FindSpelling(Text, Spellings, Out))
	{
		return true;
	}
	UE_LOG(Velmora, Error, TEXT("%s"), Message);
	return false;
}

/** The entries of an array; null, and an error in the parser's name, for anything else. */
const FJsonArray* ReadArray(const FJsonValue& Value, const TCHAR* Parser)
{
	const FJsonArray* Entries = nullptr;
	if (!Value.TryGetArray(Entries))
	{
		UE_LOG(Velmora, Error, TEXT("%s JsonValue Type Error, Need Array"), Parser);
	}
	return Entries;
}

bool RefuseArraySize(const TCHAR* Parser, int32 Size)
{
	UE_LOG(Velmora, Error, TEXT("%s Error Array Size: %d"), Parser, Size);
	return false;
}

/** One number, or an array of one, two or four. */
bool ReadMarginNumbers(const FJsonValue& Value, const TCHAR* Parser, TArray<float>& OutNumbers)
{
	OutNumbers.Empty();
	if (Value.Type == EJson::Number)
	{
		OutNumbers.Add(ToFloat(Value.AsNumber()));
		return true;
	}
	const FJsonArray* Entries = nullptr;
	if (!Value.TryGetArray(Entries))
	{
		UE_LOG(Velmora, Error, TEXT("%s JsonValue Type Error, Need(Number / Array)"), Parser);
		return false;
	}
	const int32 Num = Entries->Num();
	if (Num != 1 && Num != 2 && Num != 4)
	{
		return RefuseArraySize(Parser, Num);
	}
	for (const TSharedPtr<FJsonValue>& Entry : *Entries)
	{
		OutNumbers.Add(ToFloat(Entry->AsNumber()));
	}
	return true;
}
}

bool ParseHAlign(const TSharedPtr<FJsonValue>& Value, EHorizontalAlignment& Out)
{
	static const TSpelling<EHorizontalAlignment> Spellings[] = {
		{TEXT("HAlign_Fill"), HAlign_Fill},
		{TEXT("Fill"), HAlign_Fill},
		{TEXT("HAlign_Left"), HAlign_Left},
		{TEXT("Left"), HAlign_Left},
		{TEXT("HAlign_Center"), HAlign_Center},
		{TEXT("Center"), HAlign_Center},
		{TEXT("HAlign_Right"), HAlign_Right},
		{TEXT("Right"), HAlign_Right},
	};
	Out = HAlign_Fill;
	return ParseSpelling(
		Value->AsString(), Spellings, TEXT("ParseOrientation ParseHAlign Type Error, need String:  Fill/Left/Center/Right"), Out);
}

bool ParseVAlign(const TSharedPtr<FJsonValue>& Value, EVerticalAlignment& Out)
{
	static const TSpelling<EVerticalAlignment> Spellings[] = {
		{TEXT("VHAlign_Fill"), VAlign_Fill},
		{TEXT("Fill"), VAlign_Fill},
		{TEXT("VAlign_Top"), VAlign_Top},
		{TEXT("Top"), VAlign_Top},
		{TEXT("VAlign_Center"), VAlign_Center},
		{TEXT("Center"), VAlign_Center},
		{TEXT("VAlign_Bottom"), VAlign_Bottom},
		{TEXT("Bottom"), VAlign_Bottom},
	};
	Out = VAlign_Fill;
	return ParseSpelling(
		Value->AsString(), Spellings, TEXT("ParseOrientation ParseVAlign Type Error, need String:  Fill/Left/Center/Right"), Out);
}

bool ParseOrientation(const TSharedPtr<FJsonValue>& Value, EOrientation& Out)
{
	static const TSpelling<EOrientation> WholeWords[] = {
		{TEXT("Orient_Horizontal"), Orient_Horizontal},
		{TEXT("Horizontal"), Orient_Horizontal},
	};
	Out = Orient_Horizontal;
	const FString Text = Value->AsString();
	if (Text.Contains(TEXT("Vertical")))
	{
		Out = Orient_Vertical;
		return true;
	}
	return ParseSpelling(
		Text, WholeWords, TEXT("ParseOrientation JsonValue Type Error, need String:  Horizontal or Vertical"), Out);
}

const TCHAR* const VisibilityHelp =
	TEXT("ParseVisibility Type Error, need String:  Visible/Collapsed/Hidden/HitTestInvisible/SelfHitTestInvisible");

bool FindVisibility(const FString& Name, EVisibility& Out)
{
	static const TSpelling<EVisibility> Spellings[] = {
		{TEXT("Visible"), EVisibility::Visible},
		{TEXT("Collapsed"), EVisibility::Collapsed},
		{TEXT("Hidden"), EVisibility::Hidden},
		{TEXT("HitTestInvisible"), EVisibility::HitTestInvisible},
		{TEXT("SelfHitTestInvisible"), EVisibility::SelfHitTestInvisible},
	};
	return FindSpelling(Name, Spellings, Out);
}

bool ParseVisibility(const TSharedPtr<FJsonValue>& Value, EVisibility& Out)
{
	Out = EVisibility::Visible;
	if (FindVisibility(Value->AsString(), Out))
	{
		return true;
	}
	UE_LOG(Velmora, Error, TEXT("%s"), VisibilityHelp);
	return false;
}

bool ParseBarFillType(const TSharedPtr<FJsonValue>& Value, EProgressBarFillType::Type& Out)
{
	static const TSpelling<EProgressBarFillType::Type> Spellings[] = {
		{TEXT("LeftToRight"), EProgressBarFillType::LeftToRight},
		{TEXT("RightToLeft"), EProgressBarFillType::RightToLeft},
		{TEXT("FillFromCenter"), EProgressBarFillType::FillFromCenter},
		{TEXT("TopToBottom"), EProgressBarFillType::TopToBottom},
		{TEXT("BottomToTop"), EProgressBarFillType::BottomToTop},
	};
	return Value->Type == EJson::String &&
		ParseSpelling(Value->AsString(), Spellings,
			TEXT("ParseBarFillType Type Error, need String:  "
				 "LeftToRight/RightToLeft/FillFromCenter/TopToBottom/BottomToTop/UseMaterial"),
			Out);
}

bool ParseResizeMode(const TSharedPtr<FJsonValue>& Value, ESplitterResizeMode::Type& Out)
{
	static const TSpelling<ESplitterResizeMode::Type> Spellings[] = {
		{TEXT("FixedPosition"), ESplitterResizeMode::FixedPosition},
		{TEXT("FixedSize"), ESplitterResizeMode::FixedSize},
		{TEXT("Fill"), ESplitterResizeMode::Fill},
	};
	Out = ESplitterResizeMode::FixedPosition;
	return Value->Type == EJson::String &&
		ParseSpelling(
			Value->AsString(), Spellings, TEXT("ResizeMode Type Error, need String:  FixedPosition/FixedSize/Fill"), Out);
}

bool ParseTextWrappingPolicy(const TSharedPtr<FJsonValue>& Value, ETextWrappingPolicy& Out)
{
	static const TSpelling<ETextWrappingPolicy> Spellings[] = {
		{TEXT("AllowPerCharacterWrapping"), ETextWrappingPolicy::AllowPerCharacterWrapping},
		{TEXT("PerCharacter"), ETextWrappingPolicy::AllowPerCharacterWrapping},
		{TEXT("DefaultWrapping"), ETextWrappingPolicy::DefaultWrapping},
		{TEXT("Default"), ETextWrappingPolicy::DefaultWrapping},
	};
	Out = ETextWrappingPolicy::DefaultWrapping;
	return Value->Type == EJson::String &&
		ParseSpelling(Value->AsString(), Spellings,
			TEXT("ParseTextWrappingPolicy Type Error, need String:  AllowPerCharacterWrapping/DefaultWrapping"), Out);
}

bool ParseJustification(const TSharedPtr<FJsonValue>& Value, ETextJustify::Type& Out)
{
	Out = ETextJustify::Left;
	if (Value->Type != EJson::String)
	{
		return false;
	}
	const FString Text = Value->AsString();
	if (IsSameKey(Text, TEXT("Center")))
	{
		Out = ETextJustify::Center;
	}
	else if (IsSameKey(Text, TEXT("Right")))
	{
		Out = ETextJustify::Right;
	}
	return true;
}

bool GetNumberValue(const TSharedPtr<FJsonValue>& Value, float& Out)
{
	if (!Value.IsValid() || Value->Type != EJson::Number)
	{
		return false;
	}
	Out = ToFloat(Value->AsNumber());
	return true;
}

FMargin MakeMargin(const TArray<float>& Numbers)
{
	switch (Numbers.Num())
	{
		case 1:
			return FMargin(Numbers[0]);
		case 2:
			return FMargin(Numbers[0], Numbers[1]);
		default:
			check(Numbers.Num() == 4);
			return FMargin(Numbers[0], Numbers[1], Numbers[2], Numbers[3]);
	}
}

bool ParsePaddingValues(const TSharedPtr<FJsonValue>& Value, TArray<float>& OutValues, FMargin& OutMargin)
{
	if (!ReadMarginNumbers(*Value, TEXT("ParsePaddingValues"), OutValues))
	{
		return false;
	}
	OutMargin = MakeMargin(OutValues);
	return true;
}

bool ParseMargin(const TSharedPtr<FJsonValue>& Value, FMargin& Out)
{
	TArray<float> Numbers;
	if (!ReadMarginNumbers(*Value, TEXT("ParseMargin"), Numbers))
	{
		return false;
	}
	Out = MakeMargin(Numbers);
	return true;
}

bool ParseLinearColorValues(const TSharedPtr<FJsonValue>& Value, FLinearColor& Out)
{
	const TCHAR* Parser = TEXT("ParseLinearColorValues");
	Out = FLinearColor(1.0f, 0.0f, 1.0f, 1.0f);
	const FJsonArray* Entries = ReadArray(*Value, Parser);
	if (Entries == nullptr)
	{
		return false;
	}
	if (Entries->Num() != 3 && Entries->Num() != 4)
	{
		return RefuseArraySize(Parser, Entries->Num());
	}
	const auto Channel = [Entries](int32 Index)
	{
		return ToFloat((*Entries)[Index]->AsNumber());
	};
	Out = FLinearColor(Channel(0), Channel(1), Channel(2), Entries->Num() == 4 ? Channel(3) : 1.0f);
	return true;
}

bool ParseVector2D(const TSharedPtr<FJsonValue>& Value, FVector2D& Out)
{
	const TCHAR* Parser = TEXT("ParseVector2D");
	Out = FVector2D::ZeroVector;
	const FJsonArray* Entries = ReadArray(*Value, Parser);
	if (Entries == nullptr)
	{
		return false;
	}
	if (Entries->Num() != 2)
	{
		return RefuseArraySize(Parser, Entries->Num());
	}
	Out = FVector2D((*Entries)[0]->AsNumber(), (*Entries)[1]->AsNumber());
	return true;
}

bool ParseVector(const TSharedPtr<FJsonValue>& Value, FVector& Out)
{
	Out = FVector::ZeroVector;
	const FJsonArray* Entries = ReadArray(*Value, TEXT("ParseVector2D"));
	if (Entries == nullptr)
	{
		return false;
	}
	if (Entries->Num() != 3)
	{
		return RefuseArraySize(TEXT("ParseVector"), Entries->Num());
	}
	Out = FVector((*Entries)[0]->AsNumber(), (*Entries)[1]->AsNumber(), (*Entries)[2]->AsNumber());
	return true;
}

bool ParseIntArray(const TSharedPtr<FJsonValue>& Value, TArray<int32>& Out)
{
	Out.Empty();
	const FJsonArray* Entries = ReadArray(*Value, TEXT("ParseIntArray"));
	if (Entries == nullptr)
	{
		return false;
	}
	for (const TSharedPtr<FJsonValue>& Entry : *Entries)
	{
		if (Entry->Type == EJson::Number)
		{
			Out.Add(ToInt32(Entry->AsNumber()));
		}
		else
		{
			UE_LOG(Velmora, Error, TEXT("ParseIntArray Error, Need int Array"));
		}
	}
	return true;
}

bool ParseComboBoxOptionsSource(const TSharedPtr<FJsonValue>& Value, TArray<FString>& Out)
{
	Out.Empty();
	const FJsonArray* Entries = ReadArray(*Value, TEXT("ParseComboBoxOptionsSource"));
	if (Entries == nullptr)
	{
		return false;
	}
	for (const TSharedPtr<FJsonValue>& Entry : *Entries)
	{
		Out.Add(Entry->AsString());
	}
	return true;
}

bool ParseComboBoxOptionsSource(const TSharedPtr<FJsonValue>& Value, TArray<FString>& Out, TArray<TSharedPtr<FString>>& OutShared)
{
	OutShared.Empty();
	if (!ParseComboBoxOptionsSource(Value, Out))
	{
		return false;
	}
	for (const FString& Option : Out)
	{
		OutShared.Add(MakeShared<FString>(Option));
	}
	return true;
}

bool ParseStrArray2D(const TSharedPtr<FJsonValue>& Value, TArray<TArray<FString>>& Out)
{
	Out.Empty();
	const FJsonArray* Rows = ReadArray(*Value, TEXT("ParseComboBoxOptionsSource"));
	if (Rows == nullptr)
	{
		return false;
	}
	for (const TSharedPtr<FJsonValue>& Row : *Rows)
	{
		if (Row->Type == EJson::Array)
		{
			ParseComboBoxOptionsSource(Row, Out.AddDefaulted_GetRef());
		}
	}
	return true;
}

namespace
{
/** A string counts if the whole of it is an integer; a number is rounded. Nothing else is one, whatever it would convert to. */
bool ReadInteger(const FJsonValue& Value, int32& Out)
{
	if (Value.Type == EJson::String)
	{
		return FDefaultValueHelper::ParseInt(Value.AsString(), Out);
	}
	return Value.Type == EJson::Number && Value.TryGetNumber(Out);
}
}

bool ParseColumnRow(const TSharedPtr<FJsonObject>& Object, int32& OutColumn, int32& OutRow)
{
	OutColumn = OutRow = -1;
	const FJsonArray* Entries = nullptr;
	if (!Object->TryGetArrayField(TEXT("Column_Row"), Entries))
	{
		UE_LOG(Velmora, Warning, TEXT("Can't find ArrayFiled: Column_Row"));
		return false;
	}
	if (Entries->Num() != 2)
	{
		UE_LOG(Velmora, Error, TEXT("ColumnRowValues->Num() != 2"));
		return false;
	}
	int32 Numbers[2] = {};
	for (int32 Index = 0; Index < 2; ++Index)
	{
		const FJsonValue& Entry = *(*Entries)[Index];
		if (!ReadInteger(Entry, Numbers[Index]))
		{
			FString Text;
			Entry.TryGetString(Text);
			UE_LOG(Velmora, Error, TEXT("Parse ColumnRowValues error %s"), *Text);
			return false;
		}
	}
	OutColumn = Numbers[0];
	OutRow = Numbers[1];
	return true;
}

bool ParseFillColumn(const TSharedPtr<FJsonObject>& Object, TMap<int32, float>& Out)
{
	const FJsonArray* Pairs = nullptr;
	if (!Object->TryGetArrayField(TEXT("FillColumn"), Pairs))
	{
		UE_LOG(Velmora, Error, TEXT("\tCan't find FillColumn"));
		return false;
	}
	bool bEmptied = false;
	for (const TSharedPtr<FJsonValue>& PairValue : *Pairs)
	{
		const FJsonArray* Pair = nullptr;
		if (!PairValue->TryGetArray(Pair))
		{
			UE_LOG(Velmora, Error, TEXT("\tGetFillColumn PairVlaue Not array"));
			return false;
		}
		if (Pair->Num() != 2)
		{
			UE_LOG(Velmora, Error, TEXT("\tGetFillColumn OutArray->Num !=2"));
			return false;
		}
		const FJsonValue& Column = *(*Pair)[0];
		const FJsonValue& Fill = *(*Pair)[1];
		if (Column.Type != EJson::Number || Fill.Type != EJson::Number)
		{
			continue;
		}
		if (!bEmptied)
		{
			Out.Empty();
			bEmptied = true;
		}
		Out.Add(ToInt32(Column.AsNumber()), ToFloat(Fill.AsNumber()));
	}
	return true;
}

FString GetBindingName(const TSharedPtr<FJsonObject>& Object)
{
	const FString Prefix = TEXT("<<Data.");
	FString Binding;
	Object->TryGetStringField(TEXT("Value"), Binding);
	Binding.ReplaceInline(TEXT(" "), TEXT(""));
	return Binding.StartsWith(Prefix) ? Binding.Mid(Prefix.Len()) : FString();
}
