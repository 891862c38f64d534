#include "Rendering/PixelColor.h"

namespace
{

/** The sRGB curve of IEC 61966-2-1 at steps fine enough that each of the 256 results is hit exactly but at its very edges. */
class FEncodingTable
{
public:
	static constexpr int32 NumSteps = 8192;

	FEncodingTable()
	{
		for (int32 Step = 0; Step <= NumSteps; ++Step)
		{
			const float Linear = float(Step) / NumSteps;
			Encoded[Step] = FLinearColor(Linear, 0.0f, 0.0f).ToFColor(true).R;
		}
	}

	uint32 Encode(float Linear) const
	{
		// Written so that not-a-number counts as black.
		const float Clamped = Linear > 0.0f ? FMath::Min(Linear, 1.0f) : 0.0f;
		return Encoded[int32(Clamped * NumSteps + 0.5f)];
	}

private:
	uint8 Encoded[NumSteps + 1];
};

}

FPixelColor::FPixelColor(const FLinearColor& Linear)
{
	static const FEncodingTable Table;
	const float Alpha = Linear.A > 0.0f ? FMath::Min(Linear.A, 1.0f) : 0.0f;
	Bits =
		uint32(Alpha * 255.0f + 0.5f) << 24 | Table.Encode(Linear.R) << 16 | Table.Encode(Linear.G) << 8 | Table.Encode(Linear.B);
}

uint32 FPixelColor::Premultiplied() const
{
	const uint32 Alpha = GetAlpha();
	return (ScalePixel(Bits, Alpha) & 0x00FFFFFF) | Alpha << 24;
}
