#include "QuaterRoutine.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "ScriptedDialogs.h"
#include "SoftError.h"

namespace quorb {
namespace {

using Messages = std::vector<std::string>;
const std::string kZeroLength = "normafaute normalise vecteur nul = nul ";
const std::string kAbnormalLength = "normafaute normalise anormal en normant ";

class QuaterRoutineTest : public testing::Test {
 protected:
  QuaterRoutineTest() { softFirst = 0.0; }
  ~QuaterRoutineTest() override { softFirst = 0.0; }

  // The message of each box shown, without the explanation behind it.
  Messages ShownMessages() const {
    Messages messages;
    for (const auto& box : dialogs.boxes)
      messages.push_back(box.prompt.substr(0, box.prompt.find(CrLf)));
    return messages;
  }
  void ExpectNoWarningAtAll() const { EXPECT_EQ(softFirst, 0.0); }
  void ExpectSilentWarning() const {
    EXPECT_EQ(softFirst, 1.0);
    EXPECT_TRUE(dialogs.boxes.empty());
  }

  ScriptedDialogs dialogs;
};

Mat3 MatrixOf(const Quater& q) {
  Mat3 m;
  ConvQuaterToMat(q, m);
  return m;
}

TEST_F(QuaterRoutineTest, PlacesCountFromOne) {
  const Vector3 v{{10, 20, 30}};
  EXPECT_EQ(v(1), 10.0);
  EXPECT_EQ(v(3), 30.0);
  const Quater q{{1, 2, 3, 4}};
  EXPECT_EQ(q(1), 1.0F);
  EXPECT_EQ(q(4), 4.0F);
  Mat3 m;
  m(1, 2) = 12.0F;
  m(3, 1) = 31.0F;
  EXPECT_EQ(m.element, (std::array<float, 9>{0, 12, 0, 0, 0, 0, 31, 0, 0}));
}

TEST_F(QuaterRoutineTest, CopyTakesAllThreeComponents) {
  const Vector3 source{{1, -2, 3}};
  Vector3 destination;
  vcopy(source, destination);
  EXPECT_EQ(destination, source);
}

TEST_F(QuaterRoutineTest, ScaleMultipliesEveryComponent) {
  Vector3 out;
  vscale({{1, -2, 3}}, -2, out);
  EXPECT_EQ(out, (Vector3{{-2, 4, -6}}));
}

TEST_F(QuaterRoutineTest, AddScaledScalesTheFirstVectorOnly) {
  Vector3 out;
  vaddscaled({{1, 2, 3}}, 10, {{0.5, -1, 4}}, out);
  EXPECT_EQ(out, (Vector3{{10.5, 19, 34}}));
}

TEST_F(QuaterRoutineTest, CrossProductFollowsTheRightHand) {
  Vector3 out;
  vcross({{1, 0, 0}}, {{0, 1, 0}}, out);
  EXPECT_EQ(out, (Vector3{{0, 0, 1}}));
  vcross({{1, 2, 3}}, {{4, 5, 6}}, out);
  EXPECT_EQ(out, (Vector3{{-3, 6, -3}}));
}

TEST_F(QuaterRoutineTest, OutputMayBeAnInput) {
  const Vector3 first{{1, 2, 3}};
  const Vector3 second{{4, 5, 6}};
  Vector3 a = first;
  vcross(a, second, a);
  EXPECT_EQ(a, (Vector3{{-3, 6, -3}}));
  Vector3 b = second;
  vcross(first, b, b);
  EXPECT_EQ(b, (Vector3{{-3, 6, -3}}));
  a = first;
  vscale(a, 2, a);
  EXPECT_EQ(a, (Vector3{{2, 4, 6}}));
  a = first;
  vaddscaled(a, 2, second, a);
  EXPECT_EQ(a, (Vector3{{6, 9, 12}}));
  b = second;
  vaddscaled(first, 2, b, b);
  EXPECT_EQ(b, (Vector3{{6, 9, 12}}));
}

TEST_F(QuaterRoutineTest, ScalarProductSumsTheProducts) {
  EXPECT_EQ(vDot({{1, 2, 3}}, {{4, -5, 6}}), 12.0);
}

TEST_F(QuaterRoutineTest, NormIsTheLength) {
  EXPECT_EQ(norm({{2, -3, 6}}), 7.0);
  EXPECT_EQ(normseule({{2, -3, 6}}), 7.0);
  ExpectNoWarningAtAll();
}

TEST_F(QuaterRoutineTest, NormOfZeroIsZeroWithoutADialog) {
  EXPECT_EQ(norm({}), 0.0);
  ExpectSilentWarning();
}

TEST_F(QuaterRoutineTest, PlainNormOfZeroWarnsInNoWay) {
  EXPECT_EQ(normseule({}), 0.0);
  ExpectNoWarningAtAll();
}

TEST_F(QuaterRoutineTest, LengthThatIsNoFiniteNumberShowsADialogAndIs0) {
  EXPECT_EQ(norm({{1e200, 0, 0}}), 0.0);
  EXPECT_EQ(norm({{0, std::numeric_limits<double>::quiet_NaN(), 0}}), 0.0);
  EXPECT_EQ(normseule({{0, 0, -1e200}}), 0.0);
  EXPECT_EQ(ShownMessages(), (Messages{"normfaute", "normfaute", "normseulefaute"}));
}

TEST_F(QuaterRoutineTest, NormalisedVectorHasLengthOne) {
  Vector3 a{{2, -3, 6}};
  norma(a);
  EXPECT_EQ(a, (Vector3{{2.0 / 7, -3.0 / 7, 6.0 / 7}}));
  ExpectNoWarningAtAll();
}

TEST_F(QuaterRoutineTest, NormalisingZeroLeavesItAndShowsTheDialogOnce) {
  Vector3 a;
  norma(a);
  EXPECT_EQ(a, Vector3{});
  EXPECT_EQ(ShownMessages(), Messages{kZeroLength});
}

TEST_F(QuaterRoutineTest, NormalisingComponentsAround1e200thTakesTheZeroPath) {
  const Vector3 tiny{{1e-200, -2e-200, 3e-200}};
  Vector3 a = tiny;
  norma(a);
  EXPECT_EQ(a, tiny);
  EXPECT_EQ(ShownMessages(), Messages{kZeroLength});
}

TEST_F(QuaterRoutineTest, NormalisingWhatOverflowsLeavesItBehindTwoDialogs) {
  const Vector3 huge{{1e200, 0, 0}};
  Vector3 a = huge;
  norma(a);
  EXPECT_EQ(a, huge);
  EXPECT_EQ(ShownMessages(), (Messages{"normseulefaute", kZeroLength}));
}

TEST_F(QuaterRoutineTest, LengthThatMissesOneAfterwardsIsAbnormal) {
  // The square 2.56e-324 is rounded to the least double above 0, 4.94e-324, whose root is 2.22e-162.
  Vector3 a{{1.6e-162, 0, 0}};
  norma(a);
  EXPECT_NEAR(a(1), 0.72, 0.001);
  EXPECT_EQ(ShownMessages(), Messages{kAbnormalLength});
}

TEST_F(QuaterRoutineTest, UnitScalarQuaternionIsTheIdentity) {
  const Quater q{{1, 0, 0, 0}};
  EXPECT_EQ(MatrixOf(q), (Mat3{{1, 0, 0, 0, 1, 0, 0, 0, 1}}));
  const Vector3 v{{0.1, -2.7, 1e6}};
  Vector3 out{{9, 9, 9}};
  vRotQuat(v, q, out);
  EXPECT_EQ(out, v);
}

TEST_F(QuaterRoutineTest, QuarterTurnAboutZCarriesBodyXToY) {
  const float half = static_cast<float>(std::sqrt(0.5));
  Vector3 out;
  vRotQuat({{1, 0, 0}}, {{half, 0, 0, half}}, out);
  EXPECT_NEAR(out(1), 0.0, 1e-7);
  EXPECT_NEAR(out(2), 1.0, 1e-7);
  EXPECT_EQ(out(3), 0.0);
}

TEST_F(QuaterRoutineTest, ThirdOfATurnAboutTheDiagonalStepsTheAxesOn) {
  const Quater q{{0.5F, 0.5F, 0.5F, 0.5F}};
  EXPECT_EQ(MatrixOf(q), (Mat3{{0, 0, 1, 1, 0, 0, 0, 1, 0}}));
  Vector3 out;
  vRotQuat({{1, 2, 3}}, q, out);
  EXPECT_EQ(out, (Vector3{{3, 1, 2}}));
}

TEST_F(QuaterRoutineTest, EveryElementOfTheMatrixFollowsItsFormula) {
  // w = 1, x = 2, y = 3, z = 4.
  EXPECT_EQ(MatrixOf({{1, 2, 3, 4}}), (Mat3{{-49, 4, 22, 20, -39, 20, 10, 28, -25}}));
}

TEST_F(QuaterRoutineTest, QuaternionOfLengthTwoIsNotNormalised) {
  EXPECT_EQ(MatrixOf({{2, 0, 0, 0}}), (Mat3{{1, 0, 0, 0, 1, 0, 0, 0, 1}}));
  EXPECT_EQ(MatrixOf({{0, 2, 0, 0}}), (Mat3{{1, 0, 0, 0, -7, 0, 0, 0, -7}}));
}

TEST_F(QuaterRoutineTest, SquaresAreFormedInDoubleAndProductsInSingle) {
  // y² = 1 + 2^-11 + 2^-24, whose last term single precision drops from a product, but not from a square.
  const float y = 1.0F + std::ldexp(1.0F, -12);
  const Mat3 m = MatrixOf({{1, y, y, 1.0F + std::ldexp(1.0F, -11)}});
  EXPECT_EQ(m(1, 2), 0.0F);
  const Mat3 squares = MatrixOf({{0, 0, y, 0}});
  EXPECT_EQ(squares(1, 1), -(1.0F + std::ldexp(1.0F, -10) + std::ldexp(1.0F, -23)));
}

TEST_F(QuaterRoutineTest, RotationSumsInDoubleOverASinglePrecisionMatrix) {
  const Quater q{{0.9F, 0.1F, 0.2F, 0.3F}};
  const Mat3 m = MatrixOf(q);
  const Vector3 v{{0.1, 1e7 / 3, -5.0 / 7}};
  Vector3 out;
  vRotQuat(v, q, out);
  for (int i = 1; i <= 3; ++i)
    EXPECT_EQ(out(i), double{m(i, 1)} * v(1) + double{m(i, 2)} * v(2) + double{m(i, 3)} * v(3)) << i;
}

}  // namespace
}  // namespace quorb
