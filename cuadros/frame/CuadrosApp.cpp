#include "cuadros/frame/CuadrosApp.h"

CCuadrosApp::CCuadrosApp() : CWinApp(nullptr) {}

CCuadrosApp::~CCuadrosApp() = default;

BEGIN_MESSAGE_MAP(CCuadrosApp, CWinApp)
END_MESSAGE_MAP()

static CCuadrosApp theApp;
