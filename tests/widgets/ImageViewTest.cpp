#include "widgets/ImageView.h"

#include "support/TestCase.h"
#include "widgets/Drawn.h"

using tarvelo::platform::imageNamed;
using tarvelo::tests::drawn;
using tarvelo::widgets::ImageView;

class ImageViewTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theImageIsStretchedOverTheBounds()
    {
        ImageView view;
        view.resize(200, 20);

        view.setImage(imageNamed(QStringLiteral("recordbox")));

        const QImage image = drawn(view);
        QCOMPARE(image.pixelColor(60, 5), QColor(252, 39, 52));
        QCOMPARE(image.pixelColor(140, 5), QColor(252, 39, 52));
    }

    void withoutImageNothingIsDrawn()
    {
        ImageView view;
        view.resize(20, 20);

        QCOMPARE(drawn(view).pixelColor(10, 10), QColor(Qt::white));
    }
};

QTEST_MAIN(ImageViewTest)
#include "ImageViewTest.moc"
