#include "GlTexture.h"

#include <GL/gl.h>
#include <GL/glu.h>
#include <turbojpeg.h>

#include <array>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <functional>
#include <vector>

#include "FrameFixture.h"
#include "TemporaryDirectory.h"

namespace quorb {
namespace {

using Rgb = std::array<std::uint8_t, 3>;

constexpr Rgb kRed = {220, 30, 30};
constexpr Rgb kGreen = {30, 200, 30};
constexpr Rgb kBlue = {30, 30, 220};
constexpr Rgb kGrey = {128, 128, 128};
/// The drawing colour of the tests.
constexpr Rgb kDrawn = {255, 128, 0};

class GlTextureTest : public FrameFixture {
 protected:
  static std::vector<unsigned char> Encoded(int width, int height, const std::vector<unsigned char>& pixels,
                                            TJPF format, TJSAMP subsampling) {
    const tjhandle encoder = tjInitCompress();
    unsigned char* bytes = nullptr;
    unsigned long size = 0;
    EXPECT_EQ(tjCompress2(encoder, pixels.data(), width, 0, height, format, &bytes, &size, subsampling, 95,
                          TJFLAG_ACCURATEDCT),
              0);
    std::vector<unsigned char> file(bytes, bytes + size);
    tjFree(bytes);
    tjDestroy(encoder);
    return file;
  }

  /// A small picture whose frame header claims a width and a height: behind its mark FF C0 stand its length,
  /// 8 bits a colour, then height and width in two bytes each.
  static std::vector<unsigned char> PictureClaiming(unsigned side) {
    std::vector<unsigned char> bytes =
        Encoded(32, 32, std::vector<unsigned char>(3072, 128), TJPF_RGB, TJSAMP_444);
    std::size_t frame = 0;
    while (!(bytes[frame] == 0xFF && bytes[frame + 1] == 0xC0))
      ++frame;
    for (const std::size_t at : {frame + 5, frame + 7}) {
      bytes[at] = static_cast<unsigned char>(side / 256);
      bytes[at + 1] = static_cast<unsigned char>(side % 256);
    }
    return bytes;
  }

  void Write(const std::vector<unsigned char>& bytes) const {
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
  }

  using ColourAt = std::function<Rgb(int x, int y)>;
  void WritePicture(int width, int height, const ColourAt& colourAt) const {
    std::vector<unsigned char> pixels;
    for (int y = 0; y < height; ++y) {
      for (int x = 0; x < width; ++x) {
        const Rgb colour = colourAt(x, y);
        pixels.insert(pixels.end(), colour.begin(), colour.end());
      }
    }
    Write(Encoded(width, height, pixels, TJPF_RGB, TJSAMP_444));
  }
  void WritePlain(const Rgb& colour) const {
    WritePicture(64, 64, [&](int, int) { return colour; });
  }

  /// A light that shows the colours of what looks toward +Z, or all round a ball, as they are.
  static void LightEvenly() {
    constexpr GLfloat kFull[] = {1, 1, 1, 1};
    glLightModelfv(GL_LIGHT_MODEL_AMBIENT, kFull);
    glEnable(GL_LIGHTING);
    glEnable(GL_TEXTURE_2D);
    glColor3ub(kDrawn[0], kDrawn[1], kDrawn[2]);
  }

  /// A square of 100 pixels around the middle, with the whole picture on it.
  void DrawSquare() {
    LightEvenly();
    texture.Bind();
    constexpr float kCorners[4][2] = {{0, 0}, {1, 0}, {1, 1}, {0, 1}};
    glBegin(GL_QUADS);
    for (const auto& corner : kCorners) {
      glTexCoord2fv(corner);
      glVertex3f(100 * corner[0] - 50, 100 * corner[1] - 50, 0);
    }
    glEnd();
  }

  static Rgb PixelAt(const PixelImage& image, int x, int y) {
    const std::size_t at = image.At(x, y);
    return {image.rgb[at], image.rgb[at + 1], image.rgb[at + 2]};
  }
  static void ExpectNear(const Rgb& found, const Rgb& wanted) {
    for (std::size_t k = 0; k < 3; ++k)
      EXPECT_NEAR(found[k], wanted[k], 6) << "channel " << k;
  }

  /// The middle of a frame with the square.
  Rgb SquareColour() {
    events.onDraw = [this] { DrawSquare(); };
    return PixelAt(Frame(), 100, 100);
  }

  /// The file does not load, for a reason that the sentence tells, and the square is drawn in its colour.
  void ExpectRefused(const std::string& reason) {
    EXPECT_FALSE(texture.Load(path, error));
    EXPECT_FALSE(texture.HasPicture());
    EXPECT_TRUE(error.starts_with("The picture " + path + " " + reason)) << error;
    EXPECT_TRUE(error.ends_with(".")) << error;
    ExpectNear(SquareColour(), kDrawn);
    EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR));
  }

  TemporaryDirectory directory;
  std::string path = directory.File("picture.jpg");
  std::string error;
  GlTexture texture;
};

// ---- good pictures --------------------------------------------------------------------------------------

TEST_F(GlTextureTest, ThePictureIsShownInItsColoursWithItsTopAbove) {
  WritePicture(64, 32, [](int x, int y) { return y < 16 ? (x < 32 ? kRed : kGreen) : kBlue; });
  ASSERT_TRUE(texture.Load(path, error)) << error;
  EXPECT_TRUE(texture.HasPicture());
  events.onDraw = [this] { DrawSquare(); };
  const PixelImage image = Frame();
  ExpectNear(PixelAt(image, 75, 75), kRed);
  ExpectNear(PixelAt(image, 125, 75), kGreen);
  ExpectNear(PixelAt(image, 75, 125), kBlue);
  ExpectNear(PixelAt(image, 125, 125), kBlue);
  ExpectNear(PixelAt(image, 20, 100), {0, 0, 0});
}

TEST_F(GlTextureTest, APictureOfAnySidesIsShown) {
  for (const auto& [width, height] : {std::pair{1, 1}, {3, 5}, {301, 77}, {5000, 3}}) {
    WritePicture(width, height, [](int, int) { return kGreen; });
    ASSERT_TRUE(texture.Load(path, error)) << error;
    ExpectNear(SquareColour(), kGreen);
  }
}

TEST_F(GlTextureTest, LoadingAgainReplacesThePicture) {
  WritePicture(512, 256, [](int, int) { return kRed; });
  ASSERT_TRUE(texture.Load(path, error)) << error;
  ExpectNear(SquareColour(), kRed);
  WritePicture(16, 8, [](int, int) { return kBlue; });
  ASSERT_TRUE(texture.Load(path, error)) << error;
  ExpectNear(SquareColour(), kBlue);
}

TEST_F(GlTextureTest, APictureThatDoesNotLoadAnyMoreGoes) {
  WritePlain(kRed);
  ASSERT_TRUE(texture.Load(path, error)) << error;
  std::filesystem::remove(path);
  ExpectRefused("cannot be read: ");
}

TEST_F(GlTextureTest, TwoTexturesKeepTheirPicturesApart) {
  WritePlain(kRed);
  ASSERT_TRUE(texture.Load(path, error)) << error;
  GlTexture other;
  WritePlain(kBlue);
  ASSERT_TRUE(other.Load(path, error)) << error;
  ExpectNear(SquareColour(), kRed);
  other.Release();
  ExpectNear(SquareColour(), kRed);
}

// The ball's Z axis is the scene's; seen from -Y, with +X to the right, its middle is the picture's middle
// and east lies to the right.
TEST_F(GlTextureTest, AnUnturnedBallHasThePicturesMiddleOnTheNegativeYAxisAndEastTowardX) {
  WritePicture(256, 128, [](int x, int y) {
    if (y < 32) return kGrey;
    return x < 118 ? kBlue : x < 138 ? kRed : kGreen;
  });
  ASSERT_TRUE(texture.Load(path, error)) << error;
  host->Camera().Look(0, -200, 0, 0, 0, 0, 0, 0, 1);
  events.onDraw = [this] {
    LightEvenly();
    texture.Bind();
    GLUquadric* ball = gluNewQuadric();
    gluQuadricTexture(ball, GL_TRUE);
    gluSphere(ball, 80, 106, 106);
    gluDeleteQuadric(ball);
  };
  const PixelImage image = Frame();
  ExpectNear(PixelAt(image, 100, 100), kRed);
  ExpectNear(PixelAt(image, 60, 100), kBlue);
  ExpectNear(PixelAt(image, 140, 100), kGreen);
  ExpectNear(PixelAt(image, 100, 30), kGrey);
}

// ---- the colours of JPEG files --------------------------------------------------------------------------

TEST_F(GlTextureTest, AGreyPictureIsShownGrey) {
  Write(Encoded(32, 32, std::vector<unsigned char>(1024, 128), TJPF_GRAY, TJSAMP_GRAY));
  ASSERT_TRUE(texture.Load(path, error)) << error;
  ExpectNear(SquareColour(), kGrey);
}

TEST_F(GlTextureTest, APictureInPrintingColoursIsShownOrRefusedWithAReason) {
  Write(Encoded(32, 32, std::vector<unsigned char>(4096, 128), TJPF_CMYK, TJSAMP_444));
  if (texture.Load(path, error)) {
    ExpectNear(SquareColour(), kGrey);
  } else {
    ExpectRefused("is ");
  }
}

// ---- bad pictures ---------------------------------------------------------------------------------------

TEST_F(GlTextureTest, WithoutALoadTheDrawingColourIsShown) {
  EXPECT_FALSE(texture.HasPicture());
  ExpectNear(SquareColour(), kDrawn);
}

TEST_F(GlTextureTest, AMissingPictureIsRefused) {
  ExpectRefused("cannot be read: No such file or directory");
}

TEST_F(GlTextureTest, AnEmptyPictureIsRefused) {
  Write({});
  ExpectRefused("is no JPEG file: ");
}

TEST_F(GlTextureTest, AFileOfAnotherKindIsRefused) {
  std::ofstream(path) << "\x89PNG\r\n\x1a\n and so on";
  ExpectRefused("is no JPEG file: ");
}

TEST_F(GlTextureTest, APictureThatIsCutShortIsRefused) {
  WritePicture(200, 200, [](int x, int y) { return (x / 8 + y / 8) % 2 == 0 ? kRed : kBlue; });
  const std::uintmax_t whole = std::filesystem::file_size(path);
  std::filesystem::resize_file(path, whole / 2);
  ExpectRefused("is damaged: ");
  std::filesystem::resize_file(path, 10);
  ExpectRefused("is damaged: ");
}

TEST_F(GlTextureTest, APictureThatClaimsHugeSidesIsRefused) {
  Write(PictureClaiming(60000));
  ExpectRefused("has sides of more than 16384 pixels");
}

TEST_F(GlTextureTest, APictureOfMorePixelsThanTheMemoryIsMeantForIsRefused) {
  Write(PictureClaiming(16000));
  ExpectRefused("has more than 67108864 pixels");
}

TEST_F(GlTextureTest, AFileOfMoreThan64MiBIsRefused) {
  Write({});
  std::filesystem::resize_file(path, (std::uintmax_t{64} << 20U) + 1);
  ExpectRefused("is larger than 64 MiB");
}

TEST_F(GlTextureTest, ADirectoryIsRefused) {
  std::filesystem::create_directory(path);
  ExpectRefused("cannot be read");
}

// ---- the context ----------------------------------------------------------------------------------------

TEST_F(GlTextureTest, ReleaseFreesTheTextureAndTheNextBindReadsThePictureAgain) {
  WritePlain(kRed);
  ASSERT_TRUE(texture.Load(path, error)) << error;
  ExpectNear(SquareColour(), kRed);
  GLint name = 0;
  glGetIntegerv(GL_TEXTURE_BINDING_2D, &name);
  ASSERT_NE(name, 0);
  texture.Release();
  EXPECT_EQ(glIsTexture(static_cast<GLuint>(name)), GL_FALSE);
  ExpectNear(SquareColour(), kRed);
}

TEST_F(GlTextureTest, APictureThatIsGoneWhenTheContextComesBackGivesTheDrawingColour) {
  WritePlain(kRed);
  ASSERT_TRUE(texture.Load(path, error)) << error;
  texture.Release();
  std::filesystem::remove(path);
  ExpectNear(SquareColour(), kDrawn);
  EXPECT_FALSE(texture.HasPicture());
}

TEST_F(GlTextureTest, ReleaseWithoutAPictureDoesNothing) {
  texture.Release();
  texture.Release();
  EXPECT_FALSE(texture.HasPicture());
  ExpectNear(SquareColour(), kDrawn);
}

TEST_F(GlTextureTest, AnotherContextShowsThePictureToo) {
  WritePlain(kBlue);
  ASSERT_TRUE(texture.Load(path, error)) << error;
  ExpectNear(SquareColour(), kBlue);
  texture.Release();
  host.reset();
  SetUp();
  ExpectNear(SquareColour(), kBlue);
}

TEST_F(GlTextureTest, AThousandLoadsUseOneTextureName) {
  WritePicture(2, 2, [](int, int) { return kRed; });
  ASSERT_TRUE(texture.Load(path, error)) << error;
  texture.Bind();
  GLint first = 0, last = 0;
  glGetIntegerv(GL_TEXTURE_BINDING_2D, &first);
  for (int load = 0; load < 1000; ++load)
    ASSERT_TRUE(texture.Load(path, error)) << error;
  texture.Bind();
  glGetIntegerv(GL_TEXTURE_BINDING_2D, &last);
  EXPECT_EQ(last, first);
}

}  // namespace
}  // namespace quorb
