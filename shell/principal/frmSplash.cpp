#include "shell/principal/frmSplash.h"

#include "shell/common/Common.h"
#include "shell/common/Twips.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>
#include <QSvgRenderer>

namespace shell {

namespace {

// The picture over the whole face: a deep blue field with a lighter band for the names.
class Lamina : public QWidget {
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter p(this);
        QLinearGradient fondo(0, 0, 0, height());
        fondo.setColorAt(0, QColor(16, 36, 84));
        fondo.setColorAt(1, QColor(0, 0, 128));
        p.fillRect(rect(), fondo);
        p.setPen(QPen(QColor(242, 193, 78), 2));
        p.drawRect(rect().adjusted(5, 5, -6, -6));
    }
};

QLabel* texto(QWidget* padre, const QString& nombre, const QString& contenido, int puntos, bool negrita,
              double top, double alto) {
    auto* l = new QLabel(contenido, padre);
    l->setObjectName(nombre);
    QFont f = l->font();
    f.setPointSize(puntos);
    f.setBold(negrita);
    l->setFont(f);
    l->setStyleSheet(QStringLiteral("color: white; background: transparent;"));
    l->setAttribute(Qt::WA_TransparentForMouseEvents);
    colocar(l, 1800, top, 5000, alto);
    return l;
}

} // namespace

frmSplash::frmSplash() {
    setObjectName(QStringLiteral("frmSplash"));
    resize(px(7200), px(4200));
    setFocusPolicy(Qt::StrongFocus);

    Picture1 = new Lamina(this);
    Picture1->setObjectName(QStringLiteral("Picture1"));
    colocar(Picture1, 0, 0, 7200, 4200);
    Picture1->installEventFilter(this);

    imgLogo = new QLabel(Picture1);
    imgLogo->setObjectName(QStringLiteral("imgLogo"));
    imgLogo->setAttribute(Qt::WA_TransparentForMouseEvents);
    QPixmap logo(px(1200), px(1200));
    logo.fill(Qt::transparent);
    QPainter pintor(&logo);
    QSvgRenderer(QStringLiteral(":/iconos/logo.svg")).render(&pintor);
    pintor.end();
    imgLogo->setPixmap(logo);
    colocar(imgLogo, 360, 480, 1200, 1200);

    Label1 = texto(Picture1, QStringLiteral("Label1"), QStringLiteral("Talvera"), 22, true, 360, 600);
    Label2 = texto(Picture1, QStringLiteral("Label2"), QStringLiteral("\"La Brenal\""), 14, true, 960, 420);
    texto(Picture1, QStringLiteral("lblProducto"), QStringLiteral("Sistema de control de cuenta corriente"),
          10, false, 1500, 300);
    lblVersion =
        texto(Picture1, QStringLiteral("lblVersion"),
              QStringLiteral("Versión %1").arg(QCoreApplication::applicationVersion()), 9, false, 1860, 300);
    texto(Picture1, QStringLiteral("lblLegal1"),
          QStringLiteral("Este programa está protegido por las leyes de derechos de autor."), 8, false, 2640,
          260);
    texto(Picture1, QStringLiteral("lblLegal2"),
          QStringLiteral("Su uso está licenciado a La Brenal, Guatemala. Prohibida su copia."), 8, false,
          2900, 260);
    texto(Picture1, QStringLiteral("lblLegal3"),
          QStringLiteral("© 2026 Talvera. Todos los derechos reservados."), 8, false, 3160, 260);

    cmdClose = new QPushButton(QStringLiteral("Cerrar el sistema"), Picture1);
    cmdClose->setObjectName(QStringLiteral("cmdClose"));
    cmdClose->setFocusPolicy(Qt::NoFocus); // keys go to the face, which closes on any key
    colocar(cmdClose, 360, 3480, 1800, 375);
    connect(cmdClose, &QPushButton::clicked, this, [] { Common::Terminar(); });

    Timer1 = new QTimer(this);
    Timer1->setObjectName(QStringLiteral("Timer1"));
    Timer1->setInterval(1000);
    connect(Timer1, &QTimer::timeout, this, [this] { Common::Manejar([this] { Timer1_Timer(); }); });
}

void frmSplash::Form_Load() {
    cmdClose->setVisible(Common::TextoSeleccionado == QLatin1String("Salir"));
    ticks_ = 0;
    if (const QScreen* pantalla = QGuiApplication::primaryScreen())
        move(pantalla->geometry().center() - rect().center());
    Timer1->start();
}

void frmSplash::Timer1_Timer() {
    ticks_ += 1;
    if (ticks_ >= 5) Unload();
}

void frmSplash::mousePressEvent(QMouseEvent*) {
    Unload();
}

void frmSplash::keyPressEvent(QKeyEvent*) {
    Unload();
}

bool frmSplash::eventFilter(QObject* objeto, QEvent* evento) {
    if (objeto == Picture1 && evento->type() == QEvent::MouseButtonPress) {
        Unload();
        return true;
    }
    return Formulario::eventFilter(objeto, evento);
}

} // namespace shell
