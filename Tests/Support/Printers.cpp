#include "Printers.h"

void PrintTo(const FString& Value, std::ostream* Stream)
{
	const FTCHARToUTF8 Bytes(*Value, Value.Len());
	*Stream << '"';
	Stream->write(Bytes.Get(), Bytes.Length());
	*Stream << '"';
}

void PrintTo(const FName& Value, std::ostream* Stream)
{
	PrintTo(Value.ToString(), Stream);
}

void PrintTo(const FText& Value, std::ostream* Stream)
{
	PrintTo(Value.ToString(), Stream);
}

void PrintTo(const FVector2D& Value, std::ostream* Stream)
{
	*Stream << '(' << Value.X << ", " << Value.Y << ')';
}

void PrintTo(const FLinearColor& Value, std::ostream* Stream)
{
	*Stream << "(R=" << Value.R << ", G=" << Value.G << ", B=" << Value.B << ", A=" << Value.A << ')';
}

void PrintTo(const FColor& Value, std::ostream* Stream)
{
	*Stream << "(R=" << int32(Value.R) << ", G=" << int32(Value.G) << ", B=" << int32(Value.B) << ", A=" << int32(Value.A) << ')';
}
