-- The unit protocol of KXConfig for Wireshark and tshark, version 4.0 and later.
--
--   wireshark -X lua_script:kxconfig.lua
--   tshark -X lua_script:kxconfig.lua -r CAPTURE -Y 'kxconfig.serial_number == "4B 58 00 00 00 01"'
--
-- In the folder of personal Lua plugins (Help, About, Folders) it is loaded at every start. Newer
-- versions of both programs load no scripts when root runs them.
--
-- It takes the datagrams from and to the UDP ports 3520 to 3523, on which the application listens, so
-- it sees what goes to a unit's own device port too.
--
-- A datagram that begins with "^^Id" is a command, any other that begins with "^" is a reply.
-- Commands and replies share the fields of the parameters: kxconfig.device_port is what a command
-- sets and what a unit reports. Fields that break the format are marked as expert information, which
-- says how the application reads them; the filter "kxconfig && _ws.expert" finds them all. Where only
-- the capture ends too early, nothing but that is marked.

local protocol = Proto("kxconfig", "KXConfig Unit Protocol")

local ports = "3520-3523"
local firstDestinationPort, lastDestinationPort = 3520, 3523
local commandPrefix = "^^Id"
local shortestReply = 5
local payloadMarkerOffset = 20
local tagLength = 3
local identityLength = 6

local fields = {
    command = ProtoField.string("kxconfig.command", "Command"),
    letter = ProtoField.string("kxconfig.letter", "Letter"),
    argument = ProtoField.string("kxconfig.argument", "Argument"),
    option = ProtoField.string("kxconfig.option", "Option command"),

    marker = ProtoField.string("kxconfig.marker", "Reply marker"),
    replyTag = ProtoField.string("kxconfig.reply_tag", "Reply tag"),
    serialTag = ProtoField.string("kxconfig.serial_tag", "Serial tag"),
    payloadMarker = ProtoField.string("kxconfig.payload_marker", "Payload marker"),
    acknowledgement = ProtoField.string("kxconfig.acknowledgement", "Acknowledgement"),
    text = ProtoField.string("kxconfig.text", "Text"),
    list = ProtoField.none("kxconfig.list", "Parameter list"),
    item = ProtoField.none("kxconfig.item", "Item"),
    itemTag = ProtoField.string("kxconfig.item_tag", "Tag"),
    uninterpreted = ProtoField.string("kxconfig.uninterpreted", "Not interpreted"),
    undecoded = ProtoField.bytes("kxconfig.undecoded", "Not decoded"),

    internalMAC = ProtoField.ether("kxconfig.internal_mac", "Internal MAC address"),
    internalIP = ProtoField.ipv4("kxconfig.internal_ip", "Internal IP address"),
    destinationIP = ProtoField.ipv4("kxconfig.destination_ip", "Destination IP address"),
    destinationPort = ProtoField.uint16("kxconfig.destination_port", "Destination port number"),
    devicePort = ProtoField.uint16("kxconfig.device_port", "Device port number"),
    unitID = ProtoField.string("kxconfig.unit_id", "Unit ID"),
    destinationMAC = ProtoField.ether("kxconfig.destination_mac", "Destination MAC address"),
    serialNumber = ProtoField.string("kxconfig.serial_number", "Serial number"),
}

local function mark(name, group, severity, text)
    return ProtoExpert.new("kxconfig.expert." .. name, text, group, severity)
end

local malformed, undecoded, unusual =
    expert.group.MALFORMED, expert.group.UNDECODED, expert.group.PROTOCOL
local failure, warning, note = expert.severity.ERROR, expert.severity.WARN, expert.severity.NOTE

local experts = {
    short = mark("short", malformed, failure,
        "Datagram of four bytes or fewer; the application ignores it"),
    foreign = mark("foreign", malformed, failure,
        "Datagram does not begin with ^; the application ignores it"),
    cutShort = mark("cut_short", malformed, failure,
        "Field is cut short; the application abandons the datagram"),
    argument = mark("argument", malformed, failure,
        "Argument does not have the form that the command asks for"),
    letter = mark("letter", malformed, failure, "Command letter is not known"),
    notASCII = mark("not_ascii", malformed, failure, "Command is not ASCII"),
    unknownTag = mark("unknown_tag", malformed, warning,
        "No item of a parameter list; the application ends the list here"),
    notUTF8 = mark("not_utf8", malformed, warning, "Not valid UTF-8; the application sees no text"),
    destinationPort = mark("destination_port", unusual, warning,
        "The application sends no destination port but 3520 to 3523"),
    noSerial = mark("no_serial", unusual, warning,
        "Parameter list without a serial number; the application lists no unit"),
    repeated = mark("repeated", unusual, note, "Item comes again; the last one counts"),
    secondMarker = mark("second_marker", unusual, note,
        "Second marker is not ^; the application does not look at it"),
    noPayload = mark("no_payload", unusual, note,
        "Payload marker is not $; the application does not look at the payload"),
    capture = mark("capture", undecoded, warning, "The capture ends before the datagram does"),
}

protocol.fields = fields
protocol.experts = experts

-- Text forms, as the application shows them.

local utf8Characters = {
    "^[\x00-\x7F]()", "^[\xC2-\xDF][\x80-\xBF]()", "^\xE0[\xA0-\xBF][\x80-\xBF]()",
    "^[\xE1-\xEC\xEE\xEF][\x80-\xBF][\x80-\xBF]()", "^\xED[\x80-\x9F][\x80-\xBF]()",
    "^\xF0[\x90-\xBF][\x80-\xBF][\x80-\xBF]()", "^[\xF1-\xF3][\x80-\xBF][\x80-\xBF][\x80-\xBF]()",
    "^\xF4[\x80-\x8F][\x80-\xBF][\x80-\xBF]()",
}

local function isUTF8(bytes)
    local at = 1
    while at <= #bytes do
        local following
        for _, character in ipairs(utf8Characters) do
            following = following or bytes:match(character, at)
        end
        if not following then
            return false
        end
        at = following
    end
    return true
end

local function hexText(bytes, separator)
    local text = bytes:gsub(".", function(byte)
        return string.format("%02X%s", byte:byte(), separator)
    end)
    return text:sub(1, #text - #separator)
end

-- Characters that act on a screen or on a terminal instead of being seen, from first to last: controls,
-- separators of lines, marks of direction, and whatever takes no room. The application has the same list.
local actingCharacters = {
    { 0x0000, 0x001F }, { 0x007F, 0x009F }, { 0x00AD, 0x00AD }, { 0x034F, 0x034F },
    { 0x061C, 0x061C }, { 0x115F, 0x1160 }, { 0x17B4, 0x17B5 }, { 0x180B, 0x180F },
    { 0x200B, 0x200F }, { 0x2028, 0x202E }, { 0x2060, 0x206F }, { 0x3164, 0x3164 },
    { 0xFE00, 0xFE0F }, { 0xFEFF, 0xFEFF }, { 0xFFA0, 0xFFA0 }, { 0xFFF0, 0xFFFC },
    { 0x1BCA0, 0x1BCA3 }, { 0x1D173, 0x1D17A }, { 0xE0000, 0xE0FFF },
}

-- The code of one character in UTF-8.
local function codeOf(character)
    local first = character:byte()
    local code = first < 0x80 and first or first < 0xE0 and first - 0xC0 or
        first < 0xF0 and first - 0xE0 or first - 0xF0
    for at = 2, #character do
        code = code * 64 + character:byte(at) - 0x80
    end
    return code
end

local function acts(character)
    local code = codeOf(character)
    for _, range in ipairs(actingCharacters) do
        if code <= range[2] then
            return code >= range[1]
        end
    end
    return false
end

local shortEscapes = { ["\r"] = "\\r", ["\n"] = "\\n", ["\0"] = "\\0" }

local function escaped(character)
    return shortEscapes[character] or (character:gsub(".", function(byte)
        return string.format("\\x%02X", byte:byte())
    end))
end

-- A text without what a display could take for its own: characters that act are written as escapes.
local function visible(bytes)
    if not isUTF8(bytes) then
        return hexText(bytes, " ")
    end
    return (bytes:gsub("[\x00-\x7F\xC2-\xF4][\x80-\xBF]*", function(character)
        return acts(character) and escaped(character) or character
    end))
end

local function isNumberedUnit(bytes)
    return #bytes == identityLength and bytes:sub(1, -2) == ("\0"):rep(identityLength - 1)
end

local function unitIDText(bytes)
    return isNumberedUnit(bytes) and tostring(bytes:byte(identityLength)) or visible(bytes)
end

local function numberOf(bytes)
    local number = 0
    for _, byte in ipairs({ bytes:byte(1, -1) }) do
        number = number * 256 + byte
    end
    return number
end

local function serialNumberText(bytes)
    return hexText(bytes, " ")
end

local function octetsText(bytes)
    return hexText(bytes, ":")
end

local function hardwareAddress(bytes)
    return Address.ether(octetsText(bytes))
end

local function ipAddress(bytes)
    return Address.ip(table.concat({ bytes:byte(1, -1) }, "."))
end

-- By the tag of a list's item; the command that sets it has the same letter. `value` makes what the
-- field shows of the bytes.
local parameters = {
    M = { name = "internal MAC address", length = 6, field = fields.internalMAC,
        value = hardwareAddress },
    I = { name = "internal IP address", length = 4, field = fields.internalIP, value = ipAddress },
    D = { name = "destination IP address", length = 4, field = fields.destinationIP,
        value = ipAddress },
    T = { name = "destination port number", length = 2, field = fields.destinationPort,
        value = numberOf },
    P = { name = "device port number", length = 2, field = fields.devicePort, value = numberOf },
    U = { name = "unit ID", length = 6, field = fields.unitID, value = unitIDText },
    C = { name = "destination MAC address", length = 6, field = fields.destinationMAC,
        value = hardwareAddress },
    O = { name = "item <O>", length = 6, isReadOnly = true, field = fields.uninterpreted,
        value = octetsText },
    S = { name = "serial number", length = 6, field = fields.serialNumber,
        value = serialNumberText },
}

-- A datagram is its buffer, its captured bytes as text, and the length with which it was sent.
-- Offsets count from 0.

local function bytesAt(datagram, offset, length)
    return datagram.bytes:sub(offset + 1, offset + length)
end

local function isCaptured(datagram)
    return #datagram.bytes == datagram.length
end

-- The range from `offset` to the end of what was captured; absent when nothing is there.
local function restOf(datagram, offset)
    return offset < #datagram.bytes and datagram.buffer(offset, #datagram.bytes - offset) or nil
end

-- Shows what was captured from `offset` on without its meaning. Returns where a mark belongs.
local function addUndecoded(datagram, tree, offset)
    local rest = restOf(datagram, offset)
    return rest and tree:add(fields.undecoded, rest) or tree
end

-- Whether the field is there. Where it is not, what is there of it is marked.
local function isPresent(datagram, tree, offset, length, name)
    if offset + length <= #datagram.bytes then
        return true
    end
    local item = addUndecoded(datagram, tree, offset)
    if offset + length > datagram.length then
        item:add_proto_expert_info(experts.cutShort, "The " .. name ..
            " is cut short; the application abandons the datagram")
    end
    return false
end

-- Shows the parameter whose bytes, sent as they are or as digits, lie in `range`.
local function addParameter(tree, parameter, range, bytes)
    local item = tree:add(parameter.field, range, parameter.value(bytes))
    if parameter == parameters.U and not isNumberedUnit(bytes) and not isUTF8(bytes) then
        item:add_proto_expert_info(experts.notUTF8)
    end
end

-- Commands.

local requests = { X = "request parameters", Z = "restore factory settings" }

local function bytesOfDigits(digits)
    return (digits:gsub("..", function(pair)
        return string.char(tonumber(pair, 16))
    end))
end

-- The bytes that the digits of an argument stand for; absent when it has not the right digits.
local function bytesOfArgument(letter, argument)
    if #argument % 2 ~= 0 or argument:find("%X") then
        return nil
    end
    local digits = parameters[letter].length * 2
    -- A unit ID that was typed as text has as many digits as it needs.
    local least = letter == "U" and 2 or digits
    return #argument >= least and #argument <= digits and bytesOfDigits(argument) or nil
end

-- An argument that sets a parameter.
local function addSetting(tree, item, range, letter, argument)
    local parameter = parameters[letter]
    local bytes = bytesOfArgument(letter, argument)
    if not bytes then
        item:add_proto_expert_info(experts.argument)
        return "set " .. parameter.name .. " " .. visible(argument)
    end
    addParameter(tree, parameter, range, bytes)
    local value = parameter.value(bytes)
    if letter == "T" and (value < firstDestinationPort or value > lastDestinationPort) then
        item:add_proto_expert_info(experts.destinationPort)
    end
    return "set " .. parameter.name .. " " .. tostring(value)
end

local function dissectArgument(datagram, tree, letter, argument)
    local range = restOf(datagram, #commandPrefix + 1)
    local item = range and tree:add(fields.argument, range, visible(argument)) or tree
    if requests[letter] then
        if range then
            item:add_proto_expert_info(experts.argument)
        end
        return requests[letter]
    end
    if not parameters[letter] or parameters[letter].isReadOnly then
        item:add_proto_expert_info(experts.letter)
        return "unknown command " .. visible(letter .. argument)
    end
    return addSetting(tree, item, range, letter, argument)
end

local function dissectCommand(datagram, tree)
    local rest = datagram.bytes:sub(#commandPrefix + 1)
    local item = tree:add(fields.command, datagram.buffer(), visible(datagram.bytes))
    if datagram.bytes:find("[\x80-\xFF]") then
        item:add_proto_expert_info(experts.notASCII)
    end
    if not isCaptured(datagram) then
        return "command " .. visible(rest)
    end
    if rest:sub(-1) == "\r" then
        local text = visible(rest:sub(1, -2))
        tree:add(fields.option, restOf(datagram, #commandPrefix), text)
        return "option command " .. text
    end
    if rest == "" then
        item:add_proto_expert_info(experts.letter, "Command without a letter")
        return "command without a letter"
    end
    local letter = rest:sub(1, 1)
    tree:add(fields.letter, datagram.buffer(#commandPrefix, 1), visible(letter))
    return dissectArgument(datagram, tree, letter, rest:sub(2))
end

-- Replies.

-- One item; the offset behind it, or nothing when the datagram ends inside the item.
local function dissectItem(datagram, tree, offset, parameter, isRepeated)
    local item = tree:add(fields.item, restOf(datagram, offset)):append_text(": " .. parameter.name)
    item:add(fields.itemTag, datagram.buffer(offset, tagLength))
    local valueOffset = offset + tagLength
    if not isPresent(datagram, item, valueOffset, parameter.length, parameter.name) then
        return nil
    end
    item:set_len(tagLength + parameter.length)
    addParameter(item, parameter, datagram.buffer(valueOffset, parameter.length),
        bytesAt(datagram, valueOffset, parameter.length))
    if isRepeated then
        item:add_proto_expert_info(experts.repeated)
    end
    return valueOffset + parameter.length
end

local function dissectList(datagram, tree, offset)
    local list = tree:add(fields.list, restOf(datagram, offset))
    local seen = {}
    while offset < #datagram.bytes do
        local tag = bytesAt(datagram, offset, tagLength)
        local letter = tag:match("^<(%u)>$")
        local parameter = letter and parameters[letter]
        if not parameter then
            local item = addUndecoded(datagram, list, offset)
            if #tag == tagLength or isCaptured(datagram) then
                item:add_proto_expert_info(experts.unknownTag)
            end
            break
        end
        offset = dissectItem(datagram, list, offset, parameter, seen[letter])
        if not offset then
            return "parameters, cut short"
        end
        seen[letter] = true
    end
    if not seen.S and isCaptured(datagram) then
        list:add_proto_expert_info(experts.noSerial)
    end
    return "parameters"
end

local function dissectPayload(datagram, tree)
    local offset = payloadMarkerOffset + 1
    local tag = bytesAt(datagram, offset, tagLength)
    if tag == "<M>" then
        return dissectList(datagram, tree, offset)
    end
    if tag:find("^ok[\x00-\x7F]") then
        tree:add(fields.acknowledgement, restOf(datagram, offset),
            visible(datagram.bytes:sub(offset + 1)))
        return "acknowledgement"
    end
    -- The marker belongs to the text that the application shows.
    local text = datagram.bytes:sub(payloadMarkerOffset + 1)
    local item = tree:add(fields.text, restOf(datagram, payloadMarkerOffset), visible(text))
    if isCaptured(datagram) and not isUTF8(text) then
        item:add_proto_expert_info(experts.notUTF8)
    end
    return "text " .. visible(text)
end

-- An identity of the header and the tag before it. Returns its text, absent behind another tag, and
-- whether the datagram goes on.
local function dissectIdentity(datagram, tree, tagOffset, tagField, letter)
    local offset = tagOffset + tagLength
    if #datagram.bytes < offset then
        addUndecoded(datagram, tree, tagOffset)
        return nil, false
    end
    local tag = bytesAt(datagram, tagOffset, tagLength)
    tree:add(tagField, datagram.buffer(tagOffset, tagLength), visible(tag))
    local parameter = parameters[letter]
    if tag ~= "<" .. letter .. ">" then
        local length = math.min(parameter.length, #datagram.bytes - offset)
        if length > 0 then
            tree:add(fields.undecoded, datagram.buffer(offset, length))
        end
        return nil, length == parameter.length
    end
    if not isPresent(datagram, tree, offset, parameter.length, parameter.name) then
        return nil, false
    end
    local bytes = bytesAt(datagram, offset, parameter.length)
    addParameter(tree, parameter, datagram.buffer(offset, parameter.length), bytes)
    return parameter.value(bytes), true
end

local function dissectReply(datagram, tree)
    local marker = tree:add(fields.marker, datagram.buffer(0, 2), visible(bytesAt(datagram, 0, 2)))
    if bytesAt(datagram, 1, 1) ~= "^" then
        marker:add_proto_expert_info(experts.secondMarker)
    end
    local unit, serial, payload
    local goesOn
    unit, goesOn = dissectIdentity(datagram, tree, 2, fields.replyTag, "U")
    if goesOn then
        serial, goesOn = dissectIdentity(datagram, tree, 11, fields.serialTag, "S")
    end
    if goesOn and #datagram.bytes > payloadMarkerOffset then
        local found = bytesAt(datagram, payloadMarkerOffset, 1)
        local item = tree:add(fields.payloadMarker, datagram.buffer(payloadMarkerOffset, 1),
            visible(found))
        if found == "$" then
            payload = dissectPayload(datagram, tree)
        else
            item:add_proto_expert_info(experts.noPayload)
        end
    end
    return (payload or "reply") .. (unit and ", unit " .. unit or "") ..
        (serial and ", serial number " .. serial or "")
end

-- What the datagram is, for the list of packets.
local function dissect(datagram, tree)
    if bytesAt(datagram, 0, #commandPrefix) == commandPrefix then
        return dissectCommand(datagram, tree)
    end
    local hasMarker = bytesAt(datagram, 0, 1) == "^"
    if hasMarker and #datagram.bytes < shortestReply and not isCaptured(datagram) then
        return "not captured"
    end
    if datagram.length < shortestReply then
        tree:add_proto_expert_info(experts.short)
        return "too short"
    end
    if not hasMarker then
        addUndecoded(datagram, tree, 0):add_proto_expert_info(experts.foreign)
        return "foreign datagram"
    end
    return dissectReply(datagram, tree)
end

function protocol.dissector(buffer, pinfo, tree)
    local captured = buffer:captured_len()
    if captured == 0 then
        return 0
    end
    local datagram = {
        buffer = buffer,
        bytes = buffer:raw(0, captured),
        length = buffer:reported_len(),
    }
    pinfo.cols.protocol = "KXConfig"
    local item = tree:add(protocol, buffer())
    if not isCaptured(datagram) then
        item:add_proto_expert_info(experts.capture)
    end
    local summary = dissect(datagram, item)
    pinfo.cols.info = summary
    item:append_text(": " .. summary)
    return captured
end

DissectorTable.get("udp.port"):add(ports, protocol)
