<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>ComboFileChooser</name>
    <message>
        <source>Media (*.%1)</source>
        <translation>媒体文件 (*.%1)</translation>
    </message>
</context>
<context>
    <name>FileChooser</name>
    <message>
        <source>load</source>
        <translation>加载</translation>
    </message>
    <message>
        <source>Media (*.%1)</source>
        <translation>媒体文件 (*.%1)</translation>
    </message>
</context>
<context>
    <name>Gallery</name>
    <message>
        <source>libnocturne gallery</source>
        <translation>libnocturne 控件展示</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>从右到左</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>启用</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>主题</translation>
    </message>
    <message>
        <source>Role</source>
        <translation>角色</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>活动</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>禁用</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>非活动</translation>
    </message>
    <message>
        <source>Background %1</source>
        <translation>背景 %1</translation>
    </message>
    <message>
        <source>Resources</source>
        <translation>资源</translation>
    </message>
    <message>
        <source>Filter by name</source>
        <translation>按名称筛选</translation>
    </message>
    <message>
        <source>%1 of %2 images</source>
        <translation>%1 / %2 张图像</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Texts of the library</source>
        <translation>库中的文本</translation>
    </message>
    <message>
        <source>&amp;12;Two digits have no badge</source>
        <translation>&amp;12;两位数没有标记</translation>
    </message>
    <message>
        <source>&amp;1;Go to camera one</source>
        <translation>&amp;1;切换到一号摄像机</translation>
    </message>
    <message>
        <source>&amp;2;Go to camera two</source>
        <translation>&amp;2;切换到二号摄像机</translation>
    </message>
    <message>
        <source>&amp;3;Go to camera three</source>
        <translation>&amp;3;切换到三号摄像机</translation>
    </message>
    <message>
        <source>0, 1, 50 and 100 of 100</source>
        <translation>100 中的 0、1、50 和 100</translation>
    </message>
    <message>
        <source>A picture that is larger than its window</source>
        <translation>大于窗口的图片</translation>
    </message>
    <message>
        <source>A single tab without text</source>
        <translation>单个无文本的标签页</translation>
    </message>
    <message>
        <source>All sources are connected again.</source>
        <translation>所有信号源已重新连接。</translation>
    </message>
    <message>
        <source>Arrows</source>
        <translation>箭头</translation>
    </message>
    <message>
        <source>At the maximum</source>
        <translation>处于最大值</translation>
    </message>
    <message>
        <source>At the minimum, plus and minus</source>
        <translation>处于最小值，加号和减号</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>音频</translation>
    </message>
    <message>
        <source>Auto raise</source>
        <translation>自动凸起</translation>
    </message>
    <message>
        <source>Back hovered</source>
        <translation>指针在后退上</translation>
    </message>
    <message>
        <source>Back pressed</source>
        <translation>按下后退</translation>
    </message>
    <message>
        <source>Beside the contents</source>
        <translation>在内容旁</translation>
    </message>
    <message>
        <source>Bin %1</source>
        <translation>素材箱 %1</translation>
    </message>
    <message>
        <source>Box</source>
        <translation>方框</translation>
    </message>
    <message>
        <source>Buffer</source>
        <translation>缓冲</translation>
    </message>
    <message>
        <source>Bus %1</source>
        <translation>总线 %1</translation>
    </message>
    <message>
        <source>Bus A</source>
        <translation>总线 A</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>忙碌</translation>
    </message>
    <message>
        <source>Buttons</source>
        <translation>按钮</translation>
    </message>
    <message>
        <source>Buttons and labels</source>
        <translation>按钮和标签</translation>
    </message>
    <message>
        <source>Camera 1</source>
        <translation>摄像机 1</translation>
    </message>
    <message>
        <source>Camera 2</source>
        <translation>摄像机 2</translation>
    </message>
    <message>
        <source>Check boxes</source>
        <translation>复选框</translation>
    </message>
    <message>
        <source>Check boxes and radio buttons</source>
        <translation>复选框和单选按钮</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>已选中</translation>
    </message>
    <message>
        <source>Chosen</source>
        <translation>已选择</translation>
    </message>
    <message>
        <source>Click this label</source>
        <translation>点击此标签</translation>
    </message>
    <message>
        <source>Clickable label</source>
        <translation>可点击的标签</translation>
    </message>
    <message>
        <source>Clients</source>
        <translation>客户端</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>片段</translation>
    </message>
    <message>
        <source>Clip %1</source>
        <translation>片段 %1</translation>
    </message>
    <message>
        <source>Clip name</source>
        <translation>片段名称</translation>
    </message>
    <message>
        <source>Clip player</source>
        <translation>片段播放器</translation>
    </message>
    <message>
        <source>Combo boxes</source>
        <translation>组合框</translation>
    </message>
    <message>
        <source>Command link</source>
        <translation>命令链接</translation>
    </message>
    <message>
        <source>Containers</source>
        <translation>容器</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>硬切</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>默认</translation>
    </message>
    <message>
        <source>Delay buttons</source>
        <translation>延迟按钮</translation>
    </message>
    <message>
        <source>Dials</source>
        <translation>旋钮</translation>
    </message>
    <message>
        <source>Dissolve</source>
        <translation>叠化</translation>
    </message>
    <message>
        <source>Down pressed</source>
        <translation>按下向下</translation>
    </message>
    <message>
        <source>Editable</source>
        <translation>可编辑</translation>
    </message>
    <message>
        <source>Editable, icons</source>
        <translation>可编辑，带图标</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>特效</translation>
    </message>
    <message>
        <source>Flat</source>
        <translation>扁平</translation>
    </message>
    <message>
        <source>Flat default</source>
        <translation>扁平，默认</translation>
    </message>
    <message>
        <source>Focused</source>
        <translation>有焦点</translation>
    </message>
    <message>
        <source>Fonts</source>
        <translation>字体</translation>
    </message>
    <message>
        <source>Half a second</source>
        <translation>半秒</translation>
    </message>
    <message>
        <source>Handle hovered</source>
        <translation>指针在手柄上</translation>
    </message>
    <message>
        <source>Handle pressed</source>
        <translation>按下手柄</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>水平</translation>
    </message>
    <message>
        <source>Horizontal line</source>
        <translation>水平线</translation>
    </message>
    <message>
        <source>Horizontal progress bars</source>
        <translation>水平进度条</translation>
    </message>
    <message>
        <source>Horizontal sliders</source>
        <translation>水平滑块</translation>
    </message>
    <message>
        <source>Hovered</source>
        <translation>指针悬停</translation>
    </message>
    <message>
        <source>Icon</source>
        <translation>图标</translation>
    </message>
    <message>
        <source>Icon only</source>
        <translation>仅图标</translation>
    </message>
    <message>
        <source>In use</source>
        <translation>使用中</translation>
    </message>
    <message>
        <source>Inverted</source>
        <translation>反向</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>时长</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>电平</translation>
    </message>
    <message>
        <source>Level, time, date</source>
        <translation>电平、时间、日期</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>循环</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>媒体</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>菜单</translation>
    </message>
    <message>
        <source>Menu at once</source>
        <translation>立即弹出菜单</translation>
    </message>
    <message>
        <source>Menu on arrow</source>
        <translation>箭头弹出菜单</translation>
    </message>
    <message>
        <source>Mix</source>
        <translation>混合</translation>
    </message>
    <message>
        <source>Mixed selection</source>
        <translation>混合选择</translation>
    </message>
    <message>
        <source>No buttons</source>
        <translation>无按钮</translation>
    </message>
    <message>
        <source>No number</source>
        <translation>无编号</translation>
    </message>
    <message>
        <source>No ticks</source>
        <translation>无刻度</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>Not checkable: no delay</source>
        <translation>不可切换：无延迟</translation>
    </message>
    <message>
        <source>Not chosen</source>
        <translation>未选择</translation>
    </message>
    <message>
        <source>Not editable</source>
        <translation>不可编辑</translation>
    </message>
    <message>
        <source>Not editable, editable</source>
        <translation>不可编辑、可编辑</translation>
    </message>
    <message>
        <source>Not editable, icons</source>
        <translation>不可编辑，带图标</translation>
    </message>
    <message>
        <source>On air</source>
        <translation>播出中</translation>
    </message>
    <message>
        <source>On hovered</source>
        <translation>开启，指针悬停</translation>
    </message>
    <message>
        <source>On pressed</source>
        <translation>开启，按下</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>不透明度</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>展开</translation>
    </message>
    <message>
        <source>Open lists</source>
        <translation>展开的列表</translation>
    </message>
    <message>
        <source>Open the last show</source>
        <translation>打开上次的演出</translation>
    </message>
    <message>
        <source>Others with the same frame</source>
        <translation>使用相同边框的其他控件</translation>
    </message>
    <message>
        <source>Over %1</source>
        <translation>在 %1 之上</translation>
    </message>
    <message>
        <source>Over the contents</source>
        <translation>在内容之上</translation>
    </message>
    <message>
        <source>Partially checked</source>
        <translation>部分选中</translation>
    </message>
    <message>
        <source>Plain</source>
        <translation>普通</translation>
    </message>
    <message>
        <source>Plus and minus</source>
        <translation>加号和减号</translation>
    </message>
    <message>
        <source>Position X</source>
        <translation>X 位置</translation>
    </message>
    <message>
        <source>Position Y</source>
        <translation>Y 位置</translation>
    </message>
    <message>
        <source>Pressed</source>
        <translation>按下</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>Progress bars</source>
        <translation>进度条</translation>
    </message>
    <message>
        <source>Proxy style</source>
        <translation>代理样式</translation>
    </message>
    <message>
        <source>Push buttons</source>
        <translation>按压按钮</translation>
    </message>
    <message>
        <source>Radio buttons, set by id</source>
        <translation>按编号设置的单选按钮</translation>
    </message>
    <message>
        <source>Raised</source>
        <translation>凸起</translation>
    </message>
    <message>
        <source>Read only</source>
        <translation>只读</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>录制</translation>
    </message>
    <message>
        <source>Render</source>
        <translation>渲染</translation>
    </message>
    <message>
        <source>Scroll bars</source>
        <translation>滚动条</translation>
    </message>
    <message>
        <source>Sliders and dials</source>
        <translation>滑块和旋钮</translation>
    </message>
    <message>
        <source>Spin boxes</source>
        <translation>数值框</translation>
    </message>
    <message>
        <source>Stream</source>
        <translation>推流</translation>
    </message>
    <message>
        <source>Sunken</source>
        <translation>凹陷</translation>
    </message>
    <message>
        <source>Switches</source>
        <translation>开关</translation>
    </message>
    <message>
        <source>Take</source>
        <translation>切出</translation>
    </message>
    <message>
        <source>Tall</source>
        <translation>高</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>Text beside icon</source>
        <translation>图标旁文本</translation>
    </message>
    <message>
        <source>Text tabs have one width; a tab without text fills the bar.</source>
        <translation>有文本的标签页宽度相同；无文本的标签页填满整栏。</translation>
    </message>
    <message>
        <source>Text under icon</source>
        <translation>图标下文本</translation>
    </message>
    <message>
        <source>Ticks above</source>
        <translation>上方刻度</translation>
    </message>
    <message>
        <source>Ticks below</source>
        <translation>下方刻度</translation>
    </message>
    <message>
        <source>Ticks on both sides</source>
        <translation>两侧刻度</translation>
    </message>
    <message>
        <source>Title only</source>
        <translation>仅标题</translation>
    </message>
    <message>
        <source>Titles</source>
        <translation>字幕</translation>
    </message>
    <message>
        <source>Tool button</source>
        <translation>工具按钮</translation>
    </message>
    <message>
        <source>Tool buttons</source>
        <translation>工具按钮</translation>
    </message>
    <message>
        <source>Two seconds</source>
        <translation>两秒</translation>
    </message>
    <message>
        <source>Unchecked</source>
        <translation>未选中</translation>
    </message>
    <message>
        <source>Up hovered</source>
        <translation>指针在向上上</translation>
    </message>
    <message>
        <source>Up pressed</source>
        <translation>按下向上</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>数值</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>垂直</translation>
    </message>
    <message>
        <source>Vertical progress bars</source>
        <translation>垂直进度条</translation>
    </message>
    <message>
        <source>Vertical sliders</source>
        <translation>垂直滑块</translation>
    </message>
    <message>
        <source>Vertical, both sides</source>
        <translation>垂直，两侧</translation>
    </message>
    <message>
        <source>Vertical, inverted</source>
        <translation>垂直，反向</translation>
    </message>
    <message>
        <source>Vertical, no ticks</source>
        <translation>垂直，无刻度</translation>
    </message>
    <message>
        <source>Vertical, ticks left</source>
        <translation>垂直，左侧刻度</translation>
    </message>
    <message>
        <source>Vertical, ticks right</source>
        <translation>垂直，右侧刻度</translation>
    </message>
    <message>
        <source>Wipe</source>
        <translation>划像</translation>
    </message>
    <message>
        <source>With icon</source>
        <translation>带图标</translation>
    </message>
    <message>
        <source>With menu</source>
        <translation>带菜单</translation>
    </message>
    <message>
        <source>With notches</source>
        <translation>带刻槽</translation>
    </message>
    <message>
        <source>Without frame</source>
        <translation>无边框</translation>
    </message>
    <message>
        <source>Without text</source>
        <translation>无文本</translation>
    </message>
    <message>
        <source>Wrapping</source>
        <translation>循环</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>打开(&amp;O)…</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>演出(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>A source is missing.</source>
        <translation>缺少一个信号源。</translation>
    </message>
    <message>
        <source>A title too long for it</source>
        <translation>放不下的长标题</translation>
    </message>
    <message>
        <source>A tool tip</source>
        <translation>工具提示</translation>
    </message>
    <message>
        <source>Above</source>
        <translation>上方</translation>
    </message>
    <message>
        <source>Above, second</source>
        <translation>上方，第二个</translation>
    </message>
    <message>
        <source>Above, second line</source>
        <translation>上方，第二行</translation>
    </message>
    <message>
        <source>Below</source>
        <translation>下方</translation>
    </message>
    <message>
        <source>Camera %1</source>
        <translation>摄像机 %1</translation>
    </message>
    <message>
        <source>Cameras, players and titles</source>
        <translation>摄像机、播放器和字幕</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>通道</translation>
    </message>
    <message>
        <source>Checked, disabled</source>
        <translation>已选中，禁用</translation>
    </message>
    <message>
        <source>Checked, with an icon</source>
        <translation>已选中，带图标</translation>
    </message>
    <message>
        <source>Closable, movable, with icons</source>
        <translation>可关闭、可移动，带图标</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Copy the sources of the last one</source>
        <translation>复制上一场的信号源</translation>
    </message>
    <message>
        <source>Dialogs and tips</source>
        <translation>对话框和提示</translation>
    </message>
    <message>
        <source>Document mode, one tab disabled</source>
        <translation>文档模式，一个标签页禁用</translation>
    </message>
    <message>
        <source>Evening show</source>
        <translation>晚间演出</translation>
    </message>
    <message>
        <source>First</source>
        <translation>第一个</translation>
    </message>
    <message>
        <source>Group boxes and frames</source>
        <translation>分组框和边框</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>保持</translation>
    </message>
    <message>
        <source>Inactive window</source>
        <translation>非活动窗口</translation>
    </message>
    <message>
        <source>Inside</source>
        <translation>内部</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>键控</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>键控</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>Line edits</source>
        <translation>单行编辑框</translation>
    </message>
    <message>
        <source>Lists, tables and trees</source>
        <translation>列表、表格和树</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>日志</translation>
    </message>
    <message>
        <source>Main window</source>
        <translation>主窗口</translation>
    </message>
    <message>
        <source>Maximize hovered</source>
        <translation>指针在最大化上</translation>
    </message>
    <message>
        <source>Maximize pressed</source>
        <translation>按下最大化</translation>
    </message>
    <message>
        <source>Maximized</source>
        <translation>已最大化</translation>
    </message>
    <message>
        <source>Menus</source>
        <translation>菜单</translation>
    </message>
    <message>
        <source>Minimized</source>
        <translation>已最小化</translation>
    </message>
    <message>
        <source>Minimized window</source>
        <translation>最小化的窗口</translation>
    </message>
    <message>
        <source>Mixer</source>
        <translation>混音器</translation>
    </message>
    <message>
        <source>More</source>
        <translation>更多</translation>
    </message>
    <message>
        <source>More tabs than there is room</source>
        <translation>标签页多于空间</translation>
    </message>
    <message>
        <source>Name of the show</source>
        <translation>演出名称</translation>
    </message>
    <message>
        <source>New show</source>
        <translation>新建演出</translation>
    </message>
    <message>
        <source>Not checked</source>
        <translation>未选中</translation>
    </message>
    <message>
        <source>Not checked, with an icon</source>
        <translation>未选中，带图标</translation>
    </message>
    <message>
        <source>Nothing more</source>
        <translation>没有更多</translation>
    </message>
    <message>
        <source>One of two</source>
        <translation>二选一</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>打开…</translation>
    </message>
    <message>
        <source>Outputs</source>
        <translation>输出</translation>
    </message>
    <message>
        <source>Panel</source>
        <translation>面板</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>预监</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>主输出</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>就绪</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>Roll the titles.
Fade to black.</source>
        <translation>播放字幕。
淡出到黑场。</translation>
    </message>
    <message>
        <source>Rubber bands</source>
        <translation>橡皮筋选框</translation>
    </message>
    <message>
        <source>Save before closing?</source>
        <translation>关闭前保存吗？</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>第二个</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>分节</translation>
    </message>
    <message>
        <source>Several lines</source>
        <translation>多行</translation>
    </message>
    <message>
        <source>Shaded window</source>
        <translation>卷起的窗口</translation>
    </message>
    <message>
        <source>Show %1</source>
        <translation>演出 %1</translation>
    </message>
    <message>
        <source>Source %1</source>
        <translation>信号源 %1</translation>
    </message>
    <message>
        <source>Sources</source>
        <translation>信号源</translation>
    </message>
    <message>
        <source>Styled panel</source>
        <translation>样式面板</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>标签页</translation>
    </message>
    <message>
        <source>The default item</source>
        <translation>默认项</translation>
    </message>
    <message>
        <source>The other one</source>
        <translation>另一个</translation>
    </message>
    <message>
        <source>The rundown was changed since it was last saved.</source>
        <translation>串联单自上次保存后已更改。</translation>
    </message>
    <message>
        <source>Title aligned right</source>
        <translation>标题右对齐</translation>
    </message>
    <message>
        <source>Triangular, above</source>
        <translation>三角形，上方</translation>
    </message>
    <message>
        <source>Triangular, below</source>
        <translation>三角形，下方</translation>
    </message>
    <message>
        <source>Triangular, left</source>
        <translation>三角形，左侧</translation>
    </message>
    <message>
        <source>Triangular, right</source>
        <translation>三角形，右侧</translation>
    </message>
    <message>
        <source>Vertical title</source>
        <translation>竖排标题</translation>
    </message>
    <message>
        <source>What is it called?</source>
        <translation>它叫什么？</translation>
    </message>
    <message>
        <source>Window with help</source>
        <translation>带帮助的窗口</translation>
    </message>
    <message>
        <source>Windows in a window</source>
        <translation>窗口中的窗口</translation>
    </message>
    <message>
        <source>With a clear button</source>
        <translation>带清除按钮</translation>
    </message>
    <message>
        <source>With a hint</source>
        <translation>带提示</translation>
    </message>
    <message>
        <source>With a selection</source>
        <translation>有选中内容</translation>
    </message>
    <message>
        <source>With an icon</source>
        <translation>带图标</translation>
    </message>
</context>
<context>
    <name>GradientTool</name>
    <message>
        <source>Select color</source>
        <translation>选择颜色</translation>
    </message>
</context>
<context>
    <name>LineEditButton</name>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
</context>
<context>
    <name>RangeSlider</name>
    <message>
        <source>Maximum</source>
        <translation>最大值</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>最小值</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
</context>
<context>
    <name>SpanSlider</name>
    <message>
        <source>Lower</source>
        <translation>下限</translation>
    </message>
    <message>
        <source>Upper</source>
        <translation>上限</translation>
    </message>
</context>
</TS>
