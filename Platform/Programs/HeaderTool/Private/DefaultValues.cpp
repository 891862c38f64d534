#include "DefaultValues.h"

#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <vector>

namespace
{
std::string Trimmed(const std::string& Text)
{
	const size_t Begin = Text.find_first_not_of(" \t\r\n");
	return Begin == std::string::npos ? std::string() : Text.substr(Begin, Text.find_last_not_of(" \t\r\n") - Begin + 1);
}

/** "Name(A, B)" into its arguments. Arguments that are calls themselves are not wanted here. */
bool ParseCall(const std::string& Source, const std::string& Name, std::vector<std::string>& OutArguments)
{
	if (Source.compare(0, Name.size(), Name) != 0 || Source.back() != ')')
	{
		return false;
	}
	const std::string Rest = Trimmed(Source.substr(Name.size()));
	if (Rest.empty() || Rest.front() != '(')
	{
		return false;
	}
	std::string Inside = Trimmed(Rest.substr(1, Rest.size() - 2));
	OutArguments.clear();
	while (!Inside.empty())
	{
		const size_t Comma = Inside.find(',');
		OutArguments.push_back(Trimmed(Inside.substr(0, Comma)));
		Inside = Comma == std::string::npos ? std::string() : Inside.substr(Comma + 1);
	}
	return true;
}

/** "TEXT("...")" or a bare literal into its text. */
std::optional<std::string> ParseText(std::string Source)
{
	std::string Inside = Source;
	if (Source.compare(0, 4, "TEXT") == 0)
	{
		const std::string Rest = Trimmed(Source.substr(4));
		if (Rest.size() < 2 || Rest.front() != '(' || Rest.back() != ')')
		{
			return std::nullopt;
		}
		Inside = Trimmed(Rest.substr(1, Rest.size() - 2));
	}
	if (Inside.size() < 2 || Inside.front() != '"' || Inside.back() != '"')
	{
		return std::nullopt;
	}
	std::string Text;
	for (size_t Index = 1; Index + 1 < Inside.size(); ++Index)
	{
		if (Inside[Index] == '\\')
		{
			++Index;
			Text += Inside[Index] == 'n' ? '\n' : Inside[Index] == 't' ? '\t' : Inside[Index];
		}
		else if (Inside[Index] == '"')
		{
			return std::nullopt;
		}
		else
		{
			Text += Inside[Index];
		}
	}
	return Text;
}

std::optional<double> ParseNumber(std::string Source)
{
	if (!Source.empty() && (Source.back() == 'f' || Source.back() == 'F') && Source.compare(0, 2, "0x") != 0)
	{
		Source.pop_back();
	}
	char* End = nullptr;
	const double Value = std::strtod(Source.c_str(), &End);
	if (Source.empty() || *End ||
		!(std::isdigit(static_cast<unsigned char>(Source.front())) || Source.front() == '-' || Source.front() == '+' ||
			Source.front() == '.'))
	{
		return std::nullopt;
	}
	return Value;
}

std::optional<std::string> ParseInteger(const std::string& Source)
{
	if (Source == "INDEX_NONE")
	{
		return "-1";
	}
	const bool bNegative = !Source.empty() && Source.front() == '-';
	std::string Digits = bNegative || (!Source.empty() && Source.front() == '+') ? Source.substr(1) : Source;
	while (!Digits.empty() && (std::tolower(Digits.back()) == 'u' || std::tolower(Digits.back()) == 'l'))
	{
		Digits.pop_back();
	}
	char* End = nullptr;
	const unsigned long long Value = std::strtoull(Digits.c_str(), &End, 0);
	if (Digits.empty() || *End || !std::isdigit(static_cast<unsigned char>(Digits.front())))
	{
		return std::nullopt;
	}
	return (bNegative && Value ? "-" : "") + std::to_string(Value);
}

std::string FormatNumber(const char* Format, double Value)
{
	char Buffer[400];
	std::snprintf(Buffer, sizeof(Buffer), Format, Value);
	return Buffer;
}

/** Reads "F...(a, b, c)" with numbers; up to Wanted of them, at least Least. */
bool ParseNumbers(
	const std::string& Source, const std::string& Name, size_t Least, size_t Wanted, std::vector<double>& OutNumbers)
{
	std::vector<std::string> Arguments;
	if (!ParseCall(Source, Name, Arguments) || Arguments.size() < Least || Arguments.size() > Wanted)
	{
		return false;
	}
	OutNumbers.clear();
	for (const std::string& Argument : Arguments)
	{
		const std::optional<double> Number = ParseNumber(Argument);
		if (!Number)
		{
			return false;
		}
		OutNumbers.push_back(*Number);
	}
	return true;
}

bool IsForceInit(const std::string& Source, const std::string& Name)
{
	std::vector<std::string> Arguments;
	return ParseCall(Source, Name, Arguments) && Arguments.size() == 1 &&
		(Arguments[0] == "ForceInit" || Arguments[0] == "ForceInitToZero" || Arguments[0] == "EForceInit::ForceInit");
}

std::optional<std::string> ConvertVector(const std::string& Name, const std::string& Source)
{
	if (Source == Name + (Name == "FVector" ? "::ZeroVector" : "::ZeroRotator") || IsForceInit(Source, Name))
	{
		return std::string();
	}
	std::vector<double> Numbers;
	if (!ParseNumbers(Source, Name, 1, 3, Numbers) || Numbers.size() == 2)
	{
		return std::nullopt;
	}
	Numbers.resize(3, Numbers[0]);
	return FormatNumber("%f", Numbers[0]) + "," + FormatNumber("%f", Numbers[1]) + "," + FormatNumber("%f", Numbers[2]);
}

std::optional<std::string> ConvertVector2D(const std::string& Source)
{
	std::vector<double> Numbers;
	if (Source == "FVector2D::ZeroVector" || IsForceInit(Source, "FVector2D"))
	{
		Numbers = {0.0, 0.0};
	}
	else if (Source == "FVector2D::UnitVector")
	{
		Numbers = {1.0, 1.0};
	}
	else if (!ParseNumbers(Source, "FVector2D", 1, 2, Numbers))
	{
		return std::nullopt;
	}
	Numbers.resize(2, Numbers[0]);
	return "(X=" + FormatNumber("%3.3f", Numbers[0]) + ",Y=" + FormatNumber("%3.3f", Numbers[1]) + ")";
}

std::optional<std::string> ConvertLinearColor(const std::string& Source)
{
	static const std::map<std::string, std::vector<double>> Named = {
		{"FLinearColor::White", {1.0, 1.0, 1.0, 1.0}},
		{"FLinearColor::Gray", {0.5, 0.5, 0.5, 1.0}},
		{"FLinearColor::Black", {0.0, 0.0, 0.0, 1.0}},
		{"FLinearColor::Transparent", {0.0, 0.0, 0.0, 0.0}},
		{"FLinearColor::Red", {1.0, 0.0, 0.0, 1.0}},
		{"FLinearColor::Green", {0.0, 1.0, 0.0, 1.0}},
		{"FLinearColor::Blue", {0.0, 0.0, 1.0, 1.0}},
		{"FLinearColor::Yellow", {1.0, 1.0, 0.0, 1.0}},
	};
	std::vector<double> Numbers;
	const auto It = Named.find(Source);
	if (It != Named.end())
	{
		Numbers = It->second;
	}
	else if (IsForceInit(Source, "FLinearColor"))
	{
		Numbers = {0.0, 0.0, 0.0, 0.0};
	}
	else if (!ParseNumbers(Source, "FLinearColor", 3, 4, Numbers))
	{
		return std::nullopt;
	}
	Numbers.resize(4, 1.0);
	return "(R=" + FormatNumber("%f", Numbers[0]) + ",G=" + FormatNumber("%f", Numbers[1]) +
		",B=" + FormatNumber("%f", Numbers[2]) + ",A=" + FormatNumber("%f", Numbers[3]) + ")";
}

std::optional<std::string> ConvertStruct(const std::string& Name, const std::string& Source)
{
	std::optional<std::string> Value;
	if (Name == "FVector" || Name == "FRotator")
	{
		Value = ConvertVector(Name, Source);
	}
	else if (Name == "FVector2D")
	{
		Value = ConvertVector2D(Source);
	}
	else if (Name == "FLinearColor")
	{
		Value = ConvertLinearColor(Source);
	}
	// A default-constructed structure of any other kind.
	std::vector<std::string> Arguments;
	if (!Value && ParseCall(Source, Name, Arguments) && Arguments.empty())
	{
		Value = "()";
	}
	return Value;
}

std::optional<std::string> ConvertName(const std::string& Source)
{
	std::vector<std::string> Arguments;
	if (Source == "NAME_None" || (ParseCall(Source, "FName", Arguments) && Arguments.empty()))
	{
		return "None";
	}
	const bool bCall = Source.compare(0, 6, "FName(") == 0 && Source.back() == ')';
	const std::optional<std::string> Text = ParseText(bCall ? Trimmed(Source.substr(6, Source.size() - 7)) : Source);
	return Text && Text->empty() ? "None" : Text;
}

std::optional<std::string> ConvertString(const std::string& Source)
{
	std::vector<std::string> Arguments;
	if (ParseCall(Source, "FString", Arguments) && Arguments.empty())
	{
		return std::string();
	}
	const bool bCall = Source.compare(0, 8, "FString(") == 0 && Source.back() == ')';
	return ParseText(bCall ? Trimmed(Source.substr(8, Source.size() - 9)) : Source);
}

std::optional<std::string> ConvertText(const std::string& Source)
{
	std::vector<std::string> Arguments;
	if (Source == "FText::GetEmpty()" || (ParseCall(Source, "FText", Arguments) && Arguments.empty()))
	{
		return std::string();
	}
	const std::string Call = "FText::FromString(";
	return Source.compare(0, Call.size(), Call) == 0
		? ConvertString(Trimmed(Source.substr(Call.size(), Source.size() - Call.size() - 1)))
		: std::nullopt;
}
}

std::optional<std::string> ConvertDefaultValue(const FTypeRef& Type, const std::string& Source, const FTypeRegistry& Registry)
{
	if (Source.empty())
	{
		return std::nullopt;
	}
	switch (Registry.KindOf(Type))
	{
		case ETypeKind::Bool:
			return Source == "true" || Source == "false" ? std::optional<std::string>(Source) : std::nullopt;
		case ETypeKind::Integer:
			return ParseInteger(Source);
		case ETypeKind::Float:
			if (const std::optional<double> Number = ParseNumber(Source))
			{
				return FormatNumber("%f", *Number);
			}
			return std::nullopt;
		case ETypeKind::String:
			return ConvertString(Source);
		case ETypeKind::Name:
			return ConvertName(Source);
		case ETypeKind::Text:
			return ConvertText(Source);
		case ETypeKind::Enum:
		case ETypeKind::ByteEnum:
		{
			const size_t Colons = Source.rfind("::");
			return Colons == std::string::npos ? Source : Source.substr(Colons + 2);
		}
		case ETypeKind::Struct:
			return ConvertStruct(Type.Name, Source);
		case ETypeKind::Object:
		case ETypeKind::Class:
		case ETypeKind::Weak:
			return Source == "nullptr" || Source == "NULL" || Source == "0" ? std::optional<std::string>("None") : std::nullopt;
		default:
			return std::nullopt;
	}
}
