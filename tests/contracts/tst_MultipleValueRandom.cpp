#include "tests/contracts/RandomTableSession.h"
#include "tests/contracts/TableEditors.h"
#include "tests/support/TestMain.h"

#include <Inventor/errors/SoDebugError.h>
#include <Inventor/errors/SoReadError.h>

namespace {

const int s_steps = 100000; ///< of all editors together

void keepQuiet(const SoError*, void*) {}

} // namespace

/** Whatever is done to a multiple-value field through its editor, it holds what it must. */
class tst_MultipleValueRandom : public QObject, private TableEditors
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        SoEveryField::initClass();
        // New rows that no text fits, and commands whose rows are gone, are told about.
        SoReadError::setHandlerCallback(keepQuiet, nullptr);
        SoDebugError::setHandlerCallback(keepQuiet, nullptr);
    }

    void theFieldHoldsWhatThePlainListDoes_data() { addRows(); }
    void theFieldHoldsWhatThePlainListDoes()
    {
        QFETCH(int, row);
        RandomTableSession session(fetchRow(), quint32(row) + 1);
        QStringList last;
        const int steps = s_steps / static_cast<int>(rows().size()) + 1;
        for (int number = 0; number < steps; ++number) {
            last << session.step();
            const QString difference = session.difference();
            if (!difference.isEmpty())
                QFAIL(qPrintable(QStringLiteral("step %1: %2\nafter: %3")
                                     .arg(number)
                                     .arg(difference, last.mid(last.size() - 12).join("\n  "))));
        }
    }
};

TAVRIK_TEST_MAIN(tst_MultipleValueRandom)
#include "tst_MultipleValueRandom.moc"
