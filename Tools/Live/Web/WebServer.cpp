#include "WebServer.hpp"

#include "PageConnection.hpp"

#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/post.hpp>
#include <boost/asio/strand.hpp>
#include <boost/beast/core.hpp>
#include <boost/beast/http.hpp>
#include <boost/beast/websocket.hpp>

#include <thread>

namespace sim {

namespace {

namespace asio = boost::asio;
namespace beast = boost::beast;
namespace http = beast::http;
namespace websocket = beast::websocket;
using tcp = asio::ip::tcp;
using Request = http::request<http::string_body>;
using Response = http::response<http::string_body>;

constexpr const char *kSocketPath = "/device";
constexpr size_t kMostClients = 16;

} // namespace

struct WebServer::Impl {
    // One request, and the connection that it came over.
    struct Visit {
        explicit Visit(tcp::socket socket) : stream(std::move(socket)) {}
        beast::tcp_stream stream;
        beast::flat_buffer buffer;
        Request request;
        Response response;
    };
    using VisitRef = std::shared_ptr<Visit>;

    std::map<std::string, PageFile> files;
    asio::io_context context{1};
    tcp::acceptor acceptor{context};
    uint16_t port = 0;
    Inbox inbox;
    std::map<Client, std::shared_ptr<PageConnection>> connections;
    Client lastClient = 0;
    std::thread thread;

    void listen(uint16_t wanted);
    void acceptNext();
    void readRequest(const VisitRef &visit);
    void answer(const VisitRef &visit);
    void refuse(const VisitRef &visit, http::status status, const std::string &text);
    void respond(const VisitRef &visit);
    void upgrade(const VisitRef &visit);
    bool isOwnHost(std::string_view host) const;
    std::string objection(const Request &request) const;
};

void WebServer::Impl::listen(uint16_t wanted) {
    tcp::endpoint address(asio::ip::address_v4::loopback(), wanted);
    beast::error_code error;
    acceptor.open(address.protocol());
    acceptor.set_option(asio::socket_base::reuse_address(true));
    if (!acceptor.bind(address, error)) acceptor.listen(asio::socket_base::max_listen_connections, error);
    if (error == asio::error::address_in_use)
        throw ServerError("port " + std::to_string(wanted) +
                          " is in use: give another with --port, or --port 0 for any that is free");
    if (error) throw ServerError("cannot listen on port " + std::to_string(wanted) + ": " + error.message());
    port = acceptor.local_endpoint().port();
}

void WebServer::Impl::acceptNext() {
    acceptor.async_accept([this](beast::error_code error, tcp::socket socket) {
        if (error == asio::error::operation_aborted) return;
        if (!error) {
            beast::error_code ignored;
            // Frames are small messages that must not wait for one another.
            socket.set_option(tcp::no_delay(true), ignored);
            readRequest(std::make_shared<Visit>(std::move(socket)));
        }
        acceptNext();
    });
}

void WebServer::Impl::readRequest(const VisitRef &visit) {
    visit->request = {};
    visit->stream.expires_after(kPatience);
    http::async_read(visit->stream, visit->buffer, visit->request,
                     [this, visit](beast::error_code error, size_t) {
                         if (!error) answer(visit);
                     });
}

bool WebServer::Impl::isOwnHost(std::string_view host) const {
    std::string suffix = ":" + std::to_string(port);
    return host == "127.0.0.1" + suffix || host == "localhost" + suffix;
}

// Why a request is not answered; empty when it is. A page of another origin names that; one that has turned a
// name of its own to this machine names that as the host.
std::string WebServer::Impl::objection(const Request &request) const {
    std::string_view host(request[http::field::host].data(), request[http::field::host].size());
    if (!isOwnHost(host)) return "This is served as 127.0.0.1 only.\n";
    if (!request.count(http::field::origin)) return "";
    std::string_view origin(request[http::field::origin].data(), request[http::field::origin].size());
    bool own = origin.starts_with("http://") && isOwnHost(origin.substr(7));
    return own ? "" : "A page of another origin has no business here.\n";
}

void WebServer::Impl::answer(const VisitRef &visit) {
    const Request &request = visit->request;
    if (auto text = objection(request); !text.empty()) return refuse(visit, http::status::forbidden, text);
    if (websocket::is_upgrade(request)) return upgrade(visit);
    if (request.method() != http::verb::get && request.method() != http::verb::head)
        return refuse(visit, http::status::method_not_allowed, "There is nothing to change here.\n");
    std::string path(request.target().data(), request.target().size());
    auto found = files.find(path.substr(0, path.find('?')));
    if (found == files.end()) return refuse(visit, http::status::not_found, "There is no such file.\n");
    visit->response = Response(http::status::ok, request.version());
    visit->response.set(http::field::content_type, found->second.type);
    if (request.method() == http::verb::get) visit->response.body() = found->second.body;
    respond(visit);
}

void WebServer::Impl::refuse(const VisitRef &visit, http::status status, const std::string &text) {
    visit->response = Response(status, visit->request.version());
    visit->response.set(http::field::content_type, "text/plain; charset=utf-8");
    visit->response.body() = text;
    respond(visit);
}

void WebServer::Impl::respond(const VisitRef &visit) {
    Response &response = visit->response;
    response.set(http::field::cache_control, "no-store");
    response.set("X-Content-Type-Options", "nosniff");
    response.set("Content-Security-Policy",
                 "default-src 'self'; img-src 'self' data:; frame-ancestors 'none'");
    // Who was refused has nothing more to ask.
    response.keep_alive(visit->request.keep_alive() && response.result() == http::status::ok);
    response.prepare_payload();
    http::async_write(visit->stream, response, [this, visit](beast::error_code error, size_t) {
        if (error) return;
        if (visit->response.keep_alive()) return readRequest(visit);
        visit->stream.socket().shutdown(tcp::socket::shutdown_send, error);
    });
}

void WebServer::Impl::upgrade(const VisitRef &visit) {
    if (visit->request.target() != kSocketPath)
        return refuse(visit, http::status::not_found, "The device is at /device.\n");
    if (connections.size() >= kMostClients)
        return refuse(visit, http::status::service_unavailable, "Too many pages are open already.\n");
    Client client = ++lastClient;
    auto connection = std::make_shared<PageConnection>(std::move(visit->stream), client, inbox);
    connections.emplace(client, connection);
    connection->accept(visit->request, [this, client] { connections.erase(client); });
}

WebServer::WebServer(uint16_t port, std::map<std::string, PageFile> files) : impl_(std::make_unique<Impl>()) {
    impl_->files = std::move(files);
    impl_->listen(port);
    impl_->acceptNext();
    impl_->thread = std::thread([this] { impl_->context.run(); });
}

WebServer::~WebServer() {
    impl_->context.stop();
    impl_->thread.join();
}

uint16_t WebServer::port() const { return impl_->port; }

std::vector<WebServer::Message> WebServer::receive(Time until, bool early) {
    auto messages = impl_->inbox.take(until, early);
    if (!messages.empty())
        asio::post(impl_->context, [this] {
            for (auto &[client, connection] : impl_->connections) connection->resume();
        });
    return messages;
}

void WebServer::sendText(Client client, std::string text) {
    asio::post(impl_->context,
               [this, client, outgoing = PageConnection::Outgoing{true, std::move(text)}]() mutable {
                   auto found = impl_->connections.find(client);
                   if (found != impl_->connections.end()) found->second->send(std::move(outgoing));
               });
}

void WebServer::sendBytes(Client client, std::string bytes) {
    asio::post(impl_->context,
               [this, client, outgoing = PageConnection::Outgoing{false, std::move(bytes)}]() mutable {
                   auto found = impl_->connections.find(client);
                   if (found != impl_->connections.end()) found->second->send(std::move(outgoing));
               });
}

} // namespace sim
