#include <gtest/gtest.h>

#include "ParsedHeader.h"

namespace
{
/** What the tool says about a class with one member in line 7. */
std::vector<std::string> ErrorsOf(const std::string& Member)
{
	return FParsedHeader(
		"#include \"Thing.generated.h\"\nUCLASS()\nclass UThing : public UObject\n{\nGENERATED_BODY()\npublic:\n" + Member +
		"\n};\n")
		.Errors;
}

std::vector<std::string> Error(int Line, const std::string& Text)
{
	return {"/Game/Public/Things/Thing.h(" + std::to_string(Line) + "): Error: " + Text};
}

const std::string GExpectedType = "expected a core type, a UENUM, a USTRUCT or a pointer to a UCLASS, found ";
}

TEST(Refusal, MissingInclude)
{
	EXPECT_EQ(FParsedHeader("#pragma once\nUCLASS()\nclass UThing : public UObject\n{\nGENERATED_BODY()\n};\n").Errors,
		Error(2, "expected #include \"Thing.generated.h\" as the last include of a header with reflected types, found none"));
}

TEST(Refusal, IncludeThatIsNotLast)
{
	EXPECT_EQ(FParsedHeader("#include \"Thing.generated.h\"\n#include \"Late.h\"\n").Errors,
		Error(2, "expected \"Thing.generated.h\" to be the last include, found #include \"Late.h\" behind it"));
}

TEST(Refusal, IncludeOfAnotherHeadersFile)
{
	EXPECT_EQ(FParsedHeader("#include \"Thang.generated.h\"\n").Errors,
		Error(1, "expected #include \"Thing.generated.h\", found \"Thang.generated.h\""));
}

TEST(Refusal, ClassWithoutBody)
{
	EXPECT_EQ(FParsedHeader("#include \"Thing.generated.h\"\nUCLASS()\nclass UThing : public UObject\n{\n};\n").Errors,
		Error(2, "'UThing': expected GENERATED_BODY() at the start of the class, found none"));
}

TEST(Refusal, ClassWithoutPrefix)
{
	EXPECT_EQ(
		FParsedHeader("#include \"Thing.generated.h\"\nUCLASS()\nclass Thing : public UObject\n{\nGENERATED_BODY()\n};\n").Errors,
		Error(2, "'Thing': expected a class's name to begin with U or A, found 'Thing'"));
}

TEST(Refusal, UnknownParent)
{
	EXPECT_EQ(FParsedHeader("#include \"Thing.generated.h\"\nUCLASS()\nclass UThing : public UNobody\n{\nGENERATED_BODY()\n};\n")
				  .Errors,
		Error(2, "'UThing': expected a UCLASS as parent, found 'UNobody'"));
}

TEST(Refusal, UnknownSpecifier)
{
	EXPECT_EQ(ErrorsOf("UFUNCTION(BlueprintCalable)\nvoid F();"),
		Error(7, "expected a specifier of UFUNCTION, found 'BlueprintCalable'"));
	EXPECT_EQ(
		ErrorsOf("UPROPERTY(EditEverywhere)\nint32 X;"), Error(7, "expected a specifier of UPROPERTY, found 'EditEverywhere'"));
}

TEST(Refusal, ContainerInContainer)
{
	EXPECT_EQ(ErrorsOf("UPROPERTY()\nTArray<TArray<int32>> Rows;"),
		Error(7, "'UThing::Rows': expected no container inside of a container, found 'TArray<TArray<int32>>'"));
	EXPECT_EQ(ErrorsOf("UFUNCTION()\nTMap<FName, TArray<int32>> Rows();"),
		Error(7,
			"return value of 'UThing::Rows': expected no container inside of a container, found 'TMap<FName, TArray<int32>>'"));
}

TEST(Refusal, SharedPointer)
{
	EXPECT_EQ(ErrorsOf("UPROPERTY()\nTSharedPtr<FString> Text;"),
		Error(7, "'UThing::Text': " + GExpectedType + "'TSharedPtr<FString>'"));
}

TEST(Refusal, PlainStructure)
{
	EXPECT_EQ(ErrorsOf("UFUNCTION()\nvoid F(const FPlain& Plain);"),
		Error(8, "parameter 'Plain' of 'UThing::F': " + GExpectedType + "'FPlain'"));
}

TEST(Refusal, ObjectByValueAndValueByPointer)
{
	EXPECT_EQ(
		ErrorsOf("UPROPERTY()\nUOther Other;"), Error(7, "'UThing::Other': expected a pointer to the class, found 'UOther'"));
	EXPECT_EQ(
		ErrorsOf("UPROPERTY()\nint32* Numbers;"), Error(7, "'UThing::Numbers': expected a pointer to a UCLASS, found 'int32*'"));
	EXPECT_EQ(ErrorsOf("UPROPERTY()\nUOther** Others;"),
		Error(8, "expected a pointer to an object, found a pointer to a pointer to 'UOther'"));
}

TEST(Refusal, TypesThatScriptsCannotHave)
{
	for (const std::string Type : {"uint16", "uint32", "int8", "int16", "uint64"})
	{
		EXPECT_EQ(ErrorsOf("UFUNCTION(BlueprintCallable, Category = \"X\")\nvoid F(" + Type + " Value);"),
			Error(8,
				"parameter 'Value' of 'UThing::F': expected a type that a BlueprintCallable function can have, found '" + Type +
					"'"));
		EXPECT_EQ(ErrorsOf("UFUNCTION()\nvoid F(" + Type + " Value);"), std::vector<std::string>());
	}
	EXPECT_EQ(ErrorsOf("UFUNCTION(BlueprintPure, Category = \"X\")\nTArray<uint32> F();"),
		Error(7, "return value of 'UThing::F': expected a type that a BlueprintCallable function can have, found 'uint32'"));
}

TEST(Refusal, Overloads)
{
	EXPECT_EQ(ErrorsOf("UFUNCTION()\nvoid F();\nUFUNCTION()\nvoid F(int32 X);"),
		Error(9,
			"'UThing::F': expected one function of that name, found another in line 7 (reflected functions cannot be "
			"overloaded)"));
}

TEST(Refusal, CallableFunctionWithoutCategory)
{
	EXPECT_EQ(ErrorsOf("UFUNCTION(BlueprintCallable)\nvoid F();"),
		Error(7, "'UThing::F': expected a Category of a BlueprintCallable function, found none"));
}

TEST(Refusal, PureFunctionThatGivesNothing)
{
	EXPECT_EQ(ErrorsOf("UFUNCTION(BlueprintPure, Category = \"X\")\nvoid F();"),
		Error(7, "'F': expected a return value or an out parameter of a BlueprintPure function, found none"));
}

TEST(Refusal, DefaultThatOnlyRunningCodeKnows)
{
	EXPECT_EQ(ErrorsOf("UFUNCTION()\nvoid F(int32 X = GetNumber());"),
		Error(8, "parameter 'X' of 'UThing::F': expected a default value that can be told from its text, found 'GetNumber()'"));
}

TEST(Refusal, ScriptVisiblePropertyThatIsPrivate)
{
	EXPECT_EQ(ErrorsOf("private:\nUPROPERTY(BlueprintReadOnly)\nint32 X;"),
		Error(8,
			"'X': expected a public or protected property or the metadata AllowPrivateAccess, found a private BlueprintReadWrite "
			"or BlueprintReadOnly property"));
	EXPECT_EQ(ErrorsOf("private:\nUPROPERTY(BlueprintReadOnly, meta = (AllowPrivateAccess = \"true\"))\nint32 X;"),
		std::vector<std::string>());
}

TEST(Refusal, BitFieldOfBool)
{
	EXPECT_EQ(ErrorsOf("UPROPERTY()\nbool bX : 1;"), Error(7, "'bX': expected an integer type for a bitfield, found 'bool'"));
}

TEST(Refusal, FunctionInStructure)
{
	EXPECT_EQ(FParsedHeader(
				  "#include \"Thing.generated.h\"\nUSTRUCT()\nstruct FPart\n{\nGENERATED_BODY()\nUFUNCTION()\nvoid F();\n};\n")
				  .Errors,
		Error(6, "'FPart': expected UPROPERTY in a USTRUCT, found UFUNCTION"));
}

TEST(Refusal, UnderConditionsThatNobodyCanDecide)
{
	EXPECT_EQ(ErrorsOf("#if PLATFORM_LINUX\nUPROPERTY()\nint32 X;\n#endif"),
		Error(8, "UPROPERTY: expected no preprocessor condition around it but WITH_EDITOR or WITH_EDITORONLY_DATA, found one"));
}

TEST(Refusal, TextWithoutHashAsKey)
{
	EXPECT_EQ(ErrorsOf("UPROPERTY()\nTSet<FText> Texts;"),
		Error(7, "'UThing::Texts': expected a type with a hash as key, found 'TSet<FText>'"));
}

TEST(Refusal, EnumerationForScriptsThatIsNoByte)
{
	EXPECT_EQ(FParsedHeader("#include \"Thing.generated.h\"\nUENUM(BlueprintType)\nenum class EBig : int32 { A };\n").Errors,
		Error(2, "'EBig': expected uint8 as underlying type of a BlueprintType enumeration, found 'int32'"));
}

TEST(Refusal, MacrosOutOfPlace)
{
	EXPECT_EQ(FParsedHeader("UPROPERTY()\nint32 X;\n").Errors,
		Error(1, "expected UPROPERTY inside of a UCLASS or USTRUCT, found it outside"));
	EXPECT_EQ(FParsedHeader("UINTERFACE()\n").Errors,
		Error(1, "expected UCLASS, USTRUCT or UENUM, found 'UINTERFACE', which is not supported"));
}

TEST(Refusal, TextThatEndsTooEarly)
{
	EXPECT_EQ(
		FParsedHeader("#include \"Thing.generated.h\"\nUCLASS()\nclass UThing : public UObject\n{\nGENERATED_BODY()\n").Errors,
		Error(6, "expected '}' behind the members of 'UThing', found the end of the file"));
	EXPECT_EQ(FParsedHeader("#include \"Thing.generated.h\"\nUCLASS(").Errors,
		Error(2, "expected a specifier of UCLASS, found the end of the file"));
}

TEST(Refusal, ManifestLineOfAnUnknownKind)
{
	FTypeRegistry Registry;
	std::string Message;
	EXPECT_FALSE(Registry.AddManifest("union UThing Thing.h\n", Message));
	EXPECT_EQ(Message, "expected class, struct or enum with its name and header, found 'union UThing Thing.h'");
}
